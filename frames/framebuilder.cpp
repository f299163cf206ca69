#include "frames/framebuilder.h"

#include "frames/crc16.h"
#include "frames/hextext.h"

#include <QVarLengthArray>

namespace {

constexpr int inlineBytes = 4096;
using Buffer = QVarLengthArray<char, inlineBytes>;

constexpr int instructionLengthOfLongForm = 65535;

/// Reads a command text once from left to right, gathering hex digits until a token ends.
class PayloadScanner
{
public:
    explicit PayloadScanner(const QByteArray &text)
        : m_text(text)
    {}

    std::optional<QByteArray> scan()
    {
        while (m_position < m_text.size()) {
            const char byte = m_text.at(m_position++);
            if (byte == '/') {
                break;
            }
            if (byte == ' ') {
                if (!endToken()) {
                    return std::nullopt;
                }
            } else if (byte == '"') {
                takeLiteral();
            } else if (isPrintable(byte)) {
                m_pending.append(byte);
            }
        }
        if (!endToken() || m_payload.isEmpty()) {
            return std::nullopt;
        }
        return QByteArray(m_payload.constData(), m_payload.size());
    }

private:
    static bool isPrintable(char byte) { return byte > ' ' && byte < '\x7F'; }

    bool endToken()
    {
        if (m_pending.size() % 2 != 0) {
            return false;
        }
        for (int i = 0; i < m_pending.size(); i += 2) {
            m_payload.append(static_cast<char>(hexPairToByte(m_pending[i], m_pending[i + 1])));
        }
        m_pending.clear();
        return true;
    }

    void takeLiteral()
    {
        const int closingQuote = m_text.indexOf('"', m_position);
        const int end = closingQuote < 0 ? m_text.size() : closingQuote;
        m_payload.append(m_text.constData() + m_position, end - m_position);
        m_position = end + 1;
    }

    const QByteArray &m_text;
    int m_position = 0;
    Buffer m_pending;
    Buffer m_payload;
};

void appendLength(QByteArray &frame, const QByteArray &content, const FrameLayout &layout)
{
    const int length = content.size();
    const bool longForm = layout.maximumInstructionLength == instructionLengthOfLongForm &&
                          length > 0xFF && content.front() == longFormCommand;
    if (longForm) {
        frame.append('\0');
        frame.append(static_cast<char>(length >> 8));
    }
    frame.append(static_cast<char>(length & 0xFF));
}

} // namespace

std::optional<QByteArray> parsePayload(const QString &commandText)
{
    const QByteArray bytes = commandText.toLocal8Bit();
    return PayloadScanner(bytes).scan();
}

QByteArray buildFrame(const QString &commandText, const FrameLayout &layout)
{
    return frameOfPayload(parsePayload(commandText).value_or(QByteArray()), layout);
}

QByteArray frameOfPayload(const QByteArray &payload, const FrameLayout &layout)
{
    if (payload.isEmpty()) {
        return {};
    }
    QByteArray content = payload;
    if (layout.withCrc) {
        const quint16 crc = crc16Modbus(content);
        content.append(static_cast<char>(crc & 0xFFU));
        content.append(static_cast<char>(crc >> 8U));
    }
    QByteArray frame;
    frame.reserve(content.size() + 5);
    if (layout.withStartBytes) {
        frame.append(bytesOf(layout.startBytes));
    }
    if (layout.withLength) {
        appendLength(frame, content, layout);
    }
    return frame.append(content);
}
