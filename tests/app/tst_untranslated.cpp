#include "testfiles.h"
#include "translationfile.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

/// What the sources say, against the translations.
class TestUntranslated : public QObject
{
    Q_OBJECT

private slots:
    void everyTranslatableTextHasAnEntry();
    void everyCaptionOfAFormHasAnEntry();
    void noSentenceIsLeftOut();
};

namespace {

/// A text in the source, whole, with its escapes; what stands before it, without blanks.
struct Literal
{
    QString text;
    QString before;
};

QStringList filesOfRooms(const QStringList &patterns)
{
    QStringList files;
    for (const char *room : {"app", "codec", "commands", "expectations", "files", "frames", "links",
                             "log", "recording", "session", "widgets"}) {
        QDirIterator all(inTree(room), patterns, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            files += all.next();
        }
    }
    return files;
}

QString withoutEscapes(QString text)
{
    return text.replace("\\n", "\n").replace("\\\"", "\"").replace("\\\\", "\\");
}

/// Pieces of a text with nothing but blanks between them are one.
QVector<Literal> literalsIn(const QString &source)
{
    static const QRegularExpression piece(
        R"re(//[^\n]*|/\*.*?\*/|R"\((?<raw>.*?)\)"|"(?<plain>(?:[^"\\]|\\.)*)"|(?<![0-9A-Fa-f])'(?:[^'\\]|\\.)+')re",
        QRegularExpression::DotMatchesEverythingOption);
    QVector<Literal> literals;
    QString before;
    int from = 0;
    for (auto match = piece.globalMatch(source); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        before += source.mid(from, found.capturedStart() - from).remove(QRegularExpression("\\s"));
        from = found.capturedEnd();
        const bool isText = found.captured().endsWith('"') && !found.captured().startsWith('/');
        const QString text = found.captured("raw") + withoutEscapes(found.captured("plain"));
        if (isText && !literals.isEmpty() && before == literals.last().before + "\"\"") {
            literals.last().text += text;
        } else if (isText) {
            literals.append({text, before});
            before += "\"\"";
        }
    }
    return literals;
}

bool isTranslated(const Literal &literal)
{
    static const QRegularExpression call(R"re((tr\(|(translate|QT_TRANSLATE_NOOP)\("",)$)re");
    return call.match(literal.before).hasMatch();
}

/// Two words, and no style sheet.
bool isSentence(const QString &text)
{
    static const QRegularExpression words("[A-Za-z0-9%] [A-Za-z]");
    return words.match(text).hasMatch() && !text.contains('{');
}

/// The texts that have an entry in each language.
QSet<QString> knownTexts()
{
    QSet<QString> known;
    for (const QString &language : translatedLanguages) {
        QSet<QString> texts;
        for (const TranslatedText &text : translatedTexts(language)) {
            texts += text.source;
        }
        known = known.isEmpty() ? texts : known.intersect(texts);
    }
    return known;
}

/// Sources whose texts no window shows: they go into files, or are told by programs that speak
/// English.
bool speaksEnglish(const QString &file)
{
    static const QStringList names{"bytepattern.cpp",  "directive.cpp",    "recoverytext.cpp",
                                   "settingstext.cpp", "pcapngwriter.cpp", "wiretap.cpp"};
    return names.contains(QFileInfo(file).fileName());
}

/// Formats, and what stands in recordings.
const QStringList otherTexts{"JSON Lines (*.jsonl)",
                             " <a href=\"#\">%1</a>",
                             "%1 d",
                             "yyyy-MM-dd HH:mm:ss",
                             "the file is full",
                             "%1 events with %2 bytes dropped: the disk is too slow"};

/// The texts of the sources that are wanted and have no entry, one a line.
template<typename Wanted>
QString withoutEntry(Wanted wanted)
{
    const QSet<QString> known = knownTexts();
    QStringList missing;
    for (const QString &file : filesOfRooms({"*.cpp", "*.h"})) {
        for (const Literal &literal : literalsIn(QString::fromUtf8(contentOf(file)))) {
            if (wanted(file, literal) && !known.contains(literal.text)) {
                missing += QFileInfo(file).fileName() + ": " + literal.text;
            }
        }
    }
    return missing.join('\n');
}

} // namespace

void TestUntranslated::everyTranslatableTextHasAnEntry()
{
    int count = 0;
    QCOMPARE(withoutEntry([&count](const QString &, const Literal &literal) {
                 count += isTranslated(literal) ? 1 : 0;
                 return isTranslated(literal);
             }),
             QString());
    QVERIFY(count > 150);
}

void TestUntranslated::everyCaptionOfAFormHasAnEntry()
{
    const QSet<QString> known = knownTexts();
    const QRegularExpression caption("<string>([^<]+)</string>");
    QStringList missing;
    int count = 0;
    for (const QString &file : filesOfRooms({"*.ui"})) {
        const QString form = QString::fromUtf8(contentOf(file));
        for (auto match = caption.globalMatch(form); match.hasNext(); ++count) {
            QString text = match.next().captured(1);
            text.replace("&quot;", "\"").replace("&amp;", "&");
            missing += known.contains(text) ? QStringList() : QStringList(text);
        }
    }
    QCOMPARE(missing.join('\n'), QString());
    QVERIFY(count > 50);
}

void TestUntranslated::noSentenceIsLeftOut()
{
    QCOMPARE(withoutEntry([](const QString &file, const Literal &literal) {
                 return isSentence(literal.text) && !speaksEnglish(file) &&
                        !otherTexts.contains(literal.text);
             }),
             QString());
}

QTEST_GUILESS_MAIN(TestUntranslated)
#include "tst_untranslated.moc"
