#include "files/settingstext.h"

#include "files/initext.h"
#include "files/linedecoder.h"

#include <QVector>

#include <algorithm>
#include <utility>

namespace {

const QByteArray groupName = QByteArrayLiteral("set");

// In the order in which they are written.
const QByteArray lastLoadPathKey = QByteArrayLiteral("LastLoadPath");
const QByteArray lastSavePathKey = QByteArrayLiteral("LastSavePath");
const QByteArray linkModeKey = QByteArrayLiteral("debuggerMode");
const QByteArray isEditorFunKey = QByteArrayLiteral("isEditorFun");
const QByteArray noAppendHeaderKey = QByteArrayLiteral("noAppendHeader");
const QByteArray noAppendLengthKey = QByteArrayLiteral("noAppendLength");

/// Walks through the lines of an INI file. A group begins with a line "[name]"; a line "key=value"
/// belongs to the last one.
class LineWalk
{
public:
    explicit LineWalk(const QByteArray &content)
        : m_content(content)
    {}

    /// Goes on to the next line; false at the end.
    bool next()
    {
        m_begin = m_end;
        const int lineEnd = m_content.indexOf('\n', m_begin);
        m_end = lineEnd < 0 ? m_content.size() : lineEnd + 1;
        ++m_number;
        takeApart(line().trimmed());
        return m_begin < m_content.size();
    }

    /// The line with its end.
    QByteArray line() const { return m_content.mid(m_begin, m_end - m_begin); }
    /// Its number, from 1.
    int number() const { return m_number; }
    bool beginsOurGroup() const { return m_isHeader && m_isInOurGroup; }
    /// Empty outside our group.
    QByteArray key() const { return m_key; }
    QByteArray value() const { return m_value; }

private:
    void takeApart(QByteArray text)
    {
        if (m_begin == 0 && text.startsWith(byteOrderMark)) {
            text.remove(0, byteOrderMark.size());
        }
        m_isHeader = text.startsWith('[');
        if (m_isHeader) {
            m_isInOurGroup = text.mid(1, text.indexOf(']') - 1).trimmed() == groupName;
        }
        const int equals = m_isInOurGroup ? text.indexOf('=') : -1;
        m_key = text.left(std::max(0, equals)).trimmed();
        m_value = text.mid(equals + 1);
    }

    const QByteArray &m_content;
    int m_begin = 0;
    int m_end = 0;
    int m_number = 0;
    bool m_isHeader = false;
    bool m_isInOurGroup = false;
    QByteArray m_key;
    QByteArray m_value;
};

/// Whether the key is one of ours; its value is then taken.
bool take(Settings &settings, const QByteArray &key, const QByteArray &value)
{
    const auto text = [&value] { return iniText(value).value_or(QString()); };
    if (key == lastLoadPathKey) {
        settings.lastLoadPath = text();
    } else if (key == lastSavePathKey) {
        settings.lastSavePath = text();
    } else if (key == linkModeKey) {
        settings.linkMode = text().toInt() != 0 ? 1 : 0;
    } else if (key == isEditorFunKey) {
        settings.isEditorFun = text().toInt();
    } else if (key == noAppendHeaderKey) {
        settings.noAppendHeader = text().toInt();
    } else if (key == noAppendLengthKey) {
        settings.noAppendLength = text().toInt();
    } else {
        return false;
    }
    return true;
}

/// A key and its value, as a line.
struct Entry
{
    QByteArray key;
    QByteArray value;

    QByteArray line() const { return key + '=' + value + '\n'; }
};

QVector<Entry> entriesOf(const Settings &settings)
{
    return {{lastLoadPathKey, iniValue(settings.lastLoadPath)},
            {lastSavePathKey, iniValue(settings.lastSavePath)},
            {linkModeKey, QByteArray::number(settings.linkMode)},
            {isEditorFunKey, QByteArray::number(settings.isEditorFun)},
            {noAppendHeaderKey, QByteArray::number(settings.noAppendHeader)},
            {noAppendLengthKey, QByteArray::number(settings.noAppendLength)}};
}

/// Takes the entry of that key out of the entries; its line.
QByteArray takeLine(QVector<Entry> &entries, const QByteArray &key)
{
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [&key](const Entry &each) { return each.key == key; });
    const QByteArray line = entry == entries.end() ? QByteArray() : entry->line();
    if (entry != entries.end()) {
        entries.erase(entry);
    }
    return line;
}

/// The lines of the entries that the content has none of.
QByteArray missingLines(const QByteArray &content, QVector<Entry> entries)
{
    LineWalk walk(content);
    while (walk.next()) {
        takeLine(entries, walk.key());
    }
    QByteArray lines;
    for (const Entry &entry : std::as_const(entries)) {
        lines += entry.line();
    }
    return lines;
}

/// A line that takes the place of another one, which may be a line of Windows.
QByteArray endedLike(const QByteArray &former, QByteArray line)
{
    return former.endsWith("\r\n") ? line.replace('\n', "\r\n") : line;
}

QByteArray withLineEnd(const QByteArray &text)
{
    return text.isEmpty() || text.endsWith('\n') ? text : text + '\n';
}

} // namespace

Settings settingsIn(const QByteArray &content)
{
    Settings settings;
    LineWalk walk(content);
    while (walk.next()) {
        take(settings, walk.key(), walk.value());
    }
    return settings;
}

QVector<SettingsFault> faultsInSettings(const QByteArray &content)
{
    const QVector<QByteArray> numbers{linkModeKey, isEditorFunKey, noAppendHeaderKey,
                                      noAppendLengthKey};
    QVector<SettingsFault> faults;
    bool hasOurGroup = false;
    LineWalk walk(content);
    while (walk.next()) {
        hasOurGroup = hasOurGroup || walk.beginsOurGroup();
        bool isNumber = false;
        iniText(walk.value()).value_or(QString()).toInt(&isNumber);
        if (numbers.contains(walk.key()) && !isNumber) {
            faults.append({walk.number(), QStringLiteral("the value of %1 is no whole number")
                                              .arg(QString::fromLatin1(walk.key()))});
        }
    }
    if (!hasOurGroup) {
        faults.append(
            {1,
             QStringLiteral("there is no group [%1] in it").arg(QString::fromLatin1(groupName))});
    }
    return faults;
}

QByteArray withSettings(const QByteArray &content, const Settings &settings)
{
    QVector<Entry> entries = entriesOf(settings);
    const QByteArray missing = missingLines(content, entries);
    QByteArray written;
    bool hasOurGroup = false;
    Settings former;
    LineWalk walk(content);
    while (walk.next()) {
        const bool isOurs = take(former, walk.key(), walk.value());
        written += isOurs ? endedLike(walk.line(), takeLine(entries, walk.key())) : walk.line();
        if (walk.beginsOurGroup() && !hasOurGroup) {
            written = withLineEnd(written) + missing;
            hasOurGroup = true;
        }
    }
    if (hasOurGroup) {
        return written;
    }
    const QByteArray before = content.isEmpty() ? QByteArray() : withLineEnd(written) + '\n';
    return before + '[' + groupName + "]\n" + missing;
}
