#include "app/recordingtexts.h"
#include "app/translation.h"
#include "frames/messages.h"
#include "frames/systemwords.h"
#include "links/linktexts.h"
#include "links/openfailure.h"
#include "recording/csvexport.h"
#include "recording/recordingjob.h"
#include "translationfile.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

class TestTranslation : public QObject
{
    Q_OBJECT

private slots:
    void theFirstKnownLanguageIsSpoken_data();
    void theFirstKnownLanguageIsSpoken();
    void everyEntryIsFinished_data();
    void everyEntryIsFinished();
    void placeholdersAreKept_data();
    void placeholdersAreKept();
    void whatTextsAreMadeOfIsKept_data();
    void whatTextsAreMadeOfIsKept();
    void keysOfAMenuDiffer_data();
    void keysOfAMenuDiffer();
    void allLanguagesHaveTheSameTexts();
    void aTranslationIsInForceWhileItLives_data();
    void aTranslationIsInForceWhileItLives();
    void withoutATranslationEachTextStaysAsItIs();
    void wordsForFilesStayEnglish();
    void wordsOfTheSystemAreTranslated_data();
    void wordsOfTheSystemAreTranslated();
    void aFailureIsToldInOneLanguage();
};

namespace {

void addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translatedLanguages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

/// All places that the expression matches, sorted.
QStringList matchesIn(const QString &text, const QString &expression)
{
    QStringList found;
    for (auto match = QRegularExpression(expression).globalMatch(text); match.hasNext();) {
        found += match.next().captured();
    }
    found.sort();
    return found;
}

/// The texts of a translation that break a rule, one a line.
template<typename Rule>
QString breaking(const QString &language, Rule rule)
{
    QStringList texts;
    for (const TranslatedText &text : translatedTexts(language)) {
        if (!rule(text)) {
            texts += text.source + " → " + text.translation;
        }
    }
    return texts.join('\n');
}

QSet<QString> keysOf(const QString &language)
{
    QSet<QString> keys;
    for (const TranslatedText &text : translatedTexts(language)) {
        keys += text.context + ": " + text.source;
    }
    return keys;
}

QString inContext(const TranslatedText &text)
{
    return QCoreApplication::translate(text.context.toLatin1(), text.source.toUtf8());
}

} // namespace

void TestTranslation::theFirstKnownLanguageIsSpoken_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QString>("translation");

    QTest::newRow("none") << QStringList() << "";
    QTest::newRow("no language") << QStringList{"C"} << "";
    QTest::newRow("no name") << QStringList{"", "?", "en_"} << "";
    QTest::newRow("English") << QStringList{"en-US", "en", "en-Latn-US"} << "";
    QTest::newRow("German") << QStringList{"de-DE", "de", "de-Latn-DE"} << "de";
    QTest::newRow("Austria") << QStringList{"de_AT"} << "de";
    QTest::newRow("China") << QStringList{"zh-CN", "zh", "zh-Hans-CN"} << "zh_CN";
    QTest::newRow("Singapore") << QStringList{"zh-SG"} << "zh_CN";
    QTest::newRow("simplified") << QStringList{"zh-Hans"} << "zh_CN";
    QTest::newRow("Taiwan") << QStringList{"zh-TW", "zh-Hant-TW"} << "";
    QTest::newRow("Hong Kong") << QStringList{"zh_HK"} << "";
    QTest::newRow("French") << QStringList{"fr-FR", "fr"} << "";
    QTest::newRow("French, else German") << QStringList{"fr-FR", "de-DE"} << "de";
    QTest::newRow("French, else English") << QStringList{"fr-FR", "en-GB", "de-DE"} << "";
    QTest::newRow("English, else German") << QStringList{"en-GB", "de-DE"} << "";
}

void TestTranslation::theFirstKnownLanguageIsSpoken()
{
    QFETCH(QStringList, languages);
    QTEST(translationFor(languages), "translation");
}

void TestTranslation::everyEntryIsFinished_data()
{
    addLanguages();
}

void TestTranslation::everyEntryIsFinished()
{
    QFETCH(QString, language);
    QVERIFY(translatedTexts(language).size() > 200);
    QCOMPARE(breaking(language,
                      [](const TranslatedText &text) {
                          return text.isFinished && !text.translation.trimmed().isEmpty();
                      }),
             QString());
}

void TestTranslation::placeholdersAreKept_data()
{
    addLanguages();
}

void TestTranslation::placeholdersAreKept()
{
    QFETCH(QString, language);
    const QString placeholder = "%[0-9]";
    QCOMPARE(breaking(language,
                      [&placeholder](const TranslatedText &text) {
                          return matchesIn(text.translation, placeholder) ==
                                 matchesIn(text.source, placeholder);
                      }),
             QString());
}

void TestTranslation::whatTextsAreMadeOfIsKept_data()
{
    addLanguages();
}

/// Line ends, tags, files, filters and the key of a menu's entry. What some entries begin with,
/// two blanks, keeps a caption away from the edge.
void TestTranslation::whatTextsAreMadeOfIsKept()
{
    QFETCH(QString, language);
    const QString parts = R"(\n|<br>|\*\.[a-z]+|[\w-]+\.(ini|rules)|/etc[a-z/.]+|0x|^  |(&)(?=\w))";
    QCOMPARE(breaking(language,
                      [&parts](const TranslatedText &text) {
                          return matchesIn(text.translation, parts) ==
                                 matchesIn(text.source, parts);
                      }),
             QString());
}

void TestTranslation::keysOfAMenuDiffer_data()
{
    addLanguages();
}

void TestTranslation::keysOfAMenuDiffer()
{
    QFETCH(QString, language);
    const QStringList inTimeMenu{"Since the &row before", "Of the &day", "&Nothing"};
    QStringList keys;
    QStringList timeKeys;
    for (const TranslatedText &text : translatedTexts(language)) {
        if (text.context == "MessageMenu") {
            QStringList &menu = inTimeMenu.contains(text.source) ? timeKeys : keys;
            menu += text.translation.mid(text.translation.indexOf('&') + 1, 1).toUpper();
        }
    }
    QCOMPARE(keys.size(), 9);
    QCOMPARE(keys.removeDuplicates(), 0);
    QCOMPARE(timeKeys.size(), 3);
    QCOMPARE(timeKeys.removeDuplicates(), 0);
}

void TestTranslation::allLanguagesHaveTheSameTexts()
{
    for (const QString &language : translatedLanguages) {
        QCOMPARE(keysOf(language), keysOf(translatedLanguages.first()));
    }
}

void TestTranslation::aTranslationIsInForceWhileItLives_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("ours");
    QTest::addColumn<QString>("ofQt");

    QTest::newRow("German") << "de"
                            << "Nichts zu senden!"
                            << "Abbrechen";
    QTest::newRow("Chinese") << "zh_CN"
                             << "没有可发送的内容！"
                             << "取消";
}

void TestTranslation::aTranslationIsInForceWhileItLives()
{
    QFETCH(QString, language);
    {
        const Translation translation(language);
        QVERIFY(translation.isComplete());
        QTEST(Messages::tr("No thing to send!"), "ours");
        QTEST(QCoreApplication::translate("QPlatformTheme", "Cancel"), "ofQt");
        for (const TranslatedText &text : translatedTexts(language)) {
            QCOMPARE(inContext(text), text.translation);
        }
    }
    QCOMPARE(Messages::tr("No thing to send!"), QString("No thing to send!"));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Cancel"));
}

void TestTranslation::withoutATranslationEachTextStaysAsItIs()
{
    const Translation translation(translationFor({"fr-FR", "fr"}));
    QVERIFY(translation.isComplete());
    for (const TranslatedText &text : translatedTexts("de")) {
        QCOMPARE(inContext(text), text.source);
    }
}

void TestTranslation::wordsForFilesStayEnglish()
{
    const Translation translation("de");
    const Wording inserted = Messages::wording("Insert %1", "ttyUSB0");
    QCOMPARE(inserted.english, QString("Insert ttyUSB0"));
    QCOMPARE(inserted.shown, QString("Eingesteckt ttyUSB0"));
    QCOMPARE(Messages::shown("the disk is nearly full"), QString("der Datenträger ist fast voll"));
    QCOMPARE(Messages::shown("words of the system's own"), QString("words of the system's own"));
    QCOMPARE(Messages::shown({}), QString());
}

void TestTranslation::wordsOfTheSystemAreTranslated_data()
{
    addLanguages();
}

void TestTranslation::wordsOfTheSystemAreTranslated()
{
    QFETCH(QString, language);
    for (const char *words : systemWords) {
        QCOMPARE(Messages::shown(words), QString(words));
    }
    const Translation translation(language);
    for (const char *words : systemWords) {
        QVERIFY2(Messages::shown(words) != words, words);
    }
}

void TestTranslation::aFailureIsToldInOneLanguage()
{
    const Translation translation("de");
    const QString denied = "Permission denied";
    QCOMPARE(whyPortFailed("COM3", {OpenFailure::Cause::Other, denied, {}}),
             QString("COM3: Zugriff verweigert."));
    QCOMPARE(whyPortFailed("COM3", {OpenFailure::Cause::Busy, denied, {}}),
             QString("COM3 wird von einem anderen Programm benutzt (Zugriff verweigert)."));
    QVERIFY(whyHidFailed("/dev/hidraw0", {}, {OpenFailure::Cause::NoPermission, denied, {}})
                .startsWith("/dev/hidraw0: Zugriff verweigert. Eine udev-Regel"));
    QCOMPARE(whyLost("COM3", "Input/output error"),
             QString("Die Verbindung zu COM3 ist abgebrochen: Ein-/Ausgabefehler"));
    CsvExport outcome;
    outcome.error = denied;
    QCOMPARE(describeExport(outcome, "a.csv"),
             QString("a.csv wurde nicht exportiert: Zugriff verweigert."));
    RecordingStatus status;
    status.error = denied;
    QCOMPARE(describeRecording(status, false),
             QString("Angehalten: Zugriff verweigert, 0 Bytes, 0 Ereignisse"));
}

QTEST_GUILESS_MAIN(TestTranslation)
#include "tst_translation.moc"
