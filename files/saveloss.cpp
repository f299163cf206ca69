#include "files/saveloss.h"

#include "files/commandfile.h"
#include "files/commandline.h"
#include "frames/hextext.h"
#include "frames/messages.h"

#include <QStringList>
#include <QTextCodec>

namespace {

QByteArray encodeLine(const QTextCodec &codec, const QString &line)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString text = line + QLatin1Char('\n');
    return codec.fromUnicode(text.constData(), text.size(), &state);
}

/// Not every codec counts what it cannot encode, but none of them gives it back.
bool holdsAll(const QTextCodec &codec, const QByteArray &bytes, const QString &line)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return codec.toUnicode(bytes.constData(), bytes.size(), &state) == line + QLatin1Char('\n');
}

bool isSame(const CommandRow &row, const CommandRow &other)
{
    return row.description == other.description && row.selected == other.selected &&
           withoutBlanks(row.cmd) == withoutBlanks(other.cmd) &&
           withoutBlanks(row.addr) == withoutBlanks(other.addr) &&
           withoutBlanks(row.data) == withoutBlanks(other.data);
}

/// What is lost of a row that is read back by the given reader, which has read the lines before.
std::optional<SaveLoss> lossOf(const CommandRow &row, const QTextCodec &codec,
                               CommandLineReader &reader)
{
    const QString line = commandLine(row);
    if (line.isEmpty()) {
        return std::nullopt;
    }
    const QByteArray bytes = encodeLine(codec, line);
    const std::optional<CommandRow> loaded = reader.read(bytes);
    if (!loaded) {
        return SaveLoss::Unreadable;
    }
    if (!holdsAll(codec, bytes, line)) {
        return SaveLoss::Encoding;
    }
    return isSame(row, *loaded) ? std::nullopt : std::optional(SaveLoss::Changed);
}

QString listOfRows(const QVector<AffectedRow> &rows, SaveLoss loss)
{
    constexpr int mostNumbers = 20;
    QStringList numbers;
    for (const AffectedRow &row : rows) {
        if (row.loss == loss) {
            numbers.append(QString::number(row.number));
        }
    }
    const QString shown = QStringList(numbers.mid(0, mostNumbers)).join(QLatin1String(", "));
    const int left = numbers.size() - mostNumbers;
    return left > 0 ? Messages::tr("%1 and %2 more").arg(shown).arg(left) : shown;
}

QString explanation(SaveLoss loss)
{
    switch (loss) {
    case SaveLoss::Encoding:
        return Messages::tr("some characters do not exist in this system's text encoding");
    case SaveLoss::Unreadable:
        return Messages::tr("cannot be read again (a comma, or \"//\" at the beginning)");
    case SaveLoss::Changed:
        return Messages::tr("will be different when loaded (CMD needs 2 characters, Addr 4, a "
                            "delay at most 4)");
    }
    return {};
}

} // namespace

QVector<AffectedRow> affectedRows(const QVector<CommandRow> &rows, const QTextCodec &codec)
{
    QVector<AffectedRow> affected;
    CommandLineReader reader;
    for (int i = 0; i < rows.size(); ++i) {
        if (const std::optional<SaveLoss> loss = lossOf(rows.at(i), codec, reader)) {
            affected.append({i + 1, *loss});
        }
    }
    return affected;
}

QString saveLossMessage(const QVector<AffectedRow> &rows)
{
    if (rows.isEmpty()) {
        return {};
    }
    QStringList lines = {Messages::tr("Saved, but the file does not hold everything:")};
    for (const SaveLoss loss : {SaveLoss::Encoding, SaveLoss::Unreadable, SaveLoss::Changed}) {
        const QString numbers = listOfRows(rows, loss);
        if (!numbers.isEmpty()) {
            lines.append(Messages::tr("row %1: %2").arg(numbers, explanation(loss)));
        }
    }
    return lines.join(QLatin1Char('\n'));
}
