#include "recording/jsonlinesreader.h"

#include "frames/messages.h"
#include "recording/jsonobject.h"

#include <QIODevice>

namespace {

/// Many times that of the longest frame.
constexpr int longestLine = 4 * 1024 * 1024;

} // namespace

std::optional<RecordEvent> JsonLinesReader::next()
{
    if (m_isOver || (m_line == 0 && !readHead())) {
        m_isOver = true;
        return std::nullopt;
    }
    const std::optional<QByteArray> line = nextLine();
    if (!line) {
        m_isOver = true;
        return std::nullopt;
    }
    const JsonLine read = parseJsonLine(*line);
    if (const auto *event = std::get_if<RecordEvent>(&read); event != nullptr && !tail()) {
        return *event;
    }
    if (const auto *end = std::get_if<RecordingTail>(&read); end != nullptr && !tail()) {
        setTail(*end);
        return next();
    }
    const auto *fault = std::get_if<JsonFault>(&read);
    failHere(fault != nullptr ? fault->words : Messages::tr("it is out of place"));
    return std::nullopt;
}

bool JsonLinesReader::readHead()
{
    const std::optional<QByteArray> line = nextLine();
    if (!line) {
        return false;
    }
    const JsonLine read = parseJsonLine(*line);
    if (const auto *head = std::get_if<RecordingHead>(&read)) {
        setHead(*head);
        return true;
    }
    const auto *fault = std::get_if<JsonFault>(&read);
    failHere(fault != nullptr ? fault->words : Messages::tr("no recording begins like this"));
    return false;
}

/// A whole line; nothing at the end, where the rest is torn, and where it is too long.
std::optional<QByteArray> JsonLinesReader::nextLine()
{
    m_room.resize(longestLine + 1);
    const qint64 size = m_device.readLine(m_room.data(), m_room.size());
    if (size <= 0) {
        return std::nullopt;
    }
    const QByteArray line(m_room.constData(), static_cast<int>(size));
    ++m_line;
    if (line.endsWith('\n')) {
        return line;
    }
    if (m_device.atEnd()) {
        setTorn();
    } else {
        failHere(Messages::tr("it is too long"));
    }
    return std::nullopt;
}

void JsonLinesReader::failHere(const QString &words)
{
    m_isOver = true;
    fail(Messages::tr("line %1: %2").arg(m_line).arg(words));
}
