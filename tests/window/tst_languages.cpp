#include "app/translation.h"
#include "filedialoguser.h"
#include "serialwindow.h"
#include "testfiles.h"
#include "translationfile.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QRegularExpression>
#include <QTabBar>
#include <QTemporaryDir>
#include <QtTest>

/// The window in the languages that it speaks besides English.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aFontHasTheCharacters();
    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void headersAreWhole_data();
    void headersAreWhole();
    void theEditorIsWhole_data();
    void theEditorIsWhole();
    void messagesAreTranslated_data();
    void messagesAreTranslated();
    void questionsHaveTranslatedButtons_data();
    void questionsHaveTranslatedButtons();
    void eventsAreShownTranslated_data();
    void eventsAreShownTranslated();
    void filesAreTheSameInEachLanguage();
};

namespace {

void addWindowLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translatedLanguages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

/// A window that speaks a language; English without a name.
class SpeakingWindow
{
public:
    explicit SpeakingWindow(const QString &language)
        : translation(language)
        , driver(std::make_unique<SerialWindow>())
    {
        driver->window().resize(1120, 760);
        QCoreApplication::processEvents();
    }

    Translation translation;
    std::unique_ptr<SerialWindow> driver;
};

bool fitsInside(const QWidget &widget)
{
    return widget.parentWidget()->rect().contains(widget.geometry());
}

/// Whether all of a widget's text is seen; of a list, of each of its texts.
bool isWhole(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        const int room = edit->width() - edit->textMargins().left() - edit->textMargins().right();
        return metrics.horizontalAdvance(edit->text()) < room &&
               metrics.horizontalAdvance(edit->placeholderText()) < room;
    }
    if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
        constexpr int arrow = 30;
        const int room = box->width() - arrow;
        for (int i = 0; i < box->count(); ++i) {
            if (metrics.horizontalAdvance(box->itemText(i)) > room) {
                return false;
            }
        }
        return true;
    }
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return label != nullptr && label->wordWrap()
               ? label->heightForWidth(label->width()) <= label->height()
               : widget.width() >= widget.sizeHint().width() &&
                     widget.height() >= widget.sizeHint().height();
}

bool hasText(const QWidget &widget)
{
    return widget.isVisible() && isOfTheForm(&widget) &&
           (widget.inherits("QLabel") || widget.inherits("QAbstractButton") ||
            widget.inherits("QLineEdit") || widget.inherits("QComboBox"));
}

/// The names of the widgets in a window whose texts are cut off; "few" where there are next to
/// none to look at.
QString cutOff(const QWidget &window)
{
    QStringList names;
    int count = 0;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (hasText(*widget)) {
            ++count;
            if (!isWhole(*widget) || !fitsInside(*widget)) {
                names += widget->objectName();
            }
        }
    }
    return count > 10 ? names.join(' ') : QString("few");
}

/// The same for the editor of a row's data.
QString cutOffInEditor(const QString &language)
{
    const SpeakingWindow speaking(language);
    auto *editor = speaking.driver->window().findChild<DirectEditor *>();
    editor->show();
    QCoreApplication::processEvents();
    return cutOff(*editor);
}

/// Headers of columns that are narrower than their texts.
QString cutOffHeaders(const QTableWidget &table)
{
    const QHeaderView &header = *table.horizontalHeader();
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        const QString text = table.horizontalHeaderItem(column)->text();
        if (!header.isSectionHidden(column) &&
            header.fontMetrics().horizontalAdvance(text) > header.sectionSize(column)) {
            texts += text;
        }
    }
    return texts.join(' ');
}

QString portLink()
{
    return QCoreApplication::applicationDirPath() + "/ports/device";
}

/// A recording without its times.
QByteArray timeless(const QByteArray &recording)
{
    QString text = QString::fromUtf8(recording);
    text.remove(QRegularExpression(R"re("t":"[^"]*",|"mono_us":\d+,?|"link":"[^"]*",?)re"));
    return text.toUtf8();
}

/// What a session with a window leaves in files.
QVector<QByteArray> filesOfSession(const QString &language)
{
    const QTemporaryDir folder;
    SpeakingWindow speaking(language);
    SerialWindow &window = *speaking.driver;
    MessageBoxes boxes;
    FileDialogUser user(folder.filePath("run.jsonl"));
    TestPort port;
    window.open(port);
    window.click("pushButton_Record");
    window.setRow(0, "03", "0010", "0001");
    window.commands()->item(0, CommandColumn::Description)->setText("命令 ü");
    window.checkRow(0);
    window.setRow(1, "++", "", "50");
    window.clickSend(0);
    window.records().appendEvent("Uart", Messages::wording("Insert %1", "x"));
    window.clickSend(0);
    window.click("pushButton_OpenCom");
    window.click("pushButton_Record");
    const auto isRecorded = [&folder] {
        return contentOf(folder.filePath("run.jsonl")).contains(R"("ev":"end")");
    };
    if (!QTest::qWaitFor(isRecorded)) {
        return {};
    }
    user.choose(folder.filePath("commands.txt"));
    window.click("pushButton_SaveCommand");
    user.choose(folder.filePath("messages.txt"));
    window.click("pushButton_SaveMessage");
    window.window().close();
    QByteArray settings = contentOf(QCoreApplication::applicationDirPath() + "/debuggerConfig.ini");
    settings.replace(folder.path().toUtf8(), "folder");
    return {timeless(contentOf(folder.filePath("run.jsonl"))),
            contentOf(folder.filePath("commands.txt")), contentOf(folder.filePath("messages.txt")),
            settings};
}

} // namespace

void TestLanguages::init()
{
    const QDir folder(QCoreApplication::applicationDirPath());
    QFile::remove(folder.filePath("debuggerConfig.ini"));
    QFile::remove(folder.filePath("window.ini"));
    QDir(folder.filePath("ports")).removeRecursively();
    QVERIFY(folder.mkpath("ports"));
}

void TestLanguages::aFontHasTheCharacters()
{
    QVERIFY(QFontDatabase().writingSystems().contains(QFontDatabase::SimplifiedChinese));
}

void TestLanguages::nothingIsCutOff_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("tab");
    QTest::addColumn<bool>("isBusy");

    for (const QString &language : translatedLanguages) {
        QTest::addRow("%s, Uart", qPrintable(language)) << language << 0 << false;
        QTest::addRow("%s, HID", qPrintable(language)) << language << 1 << false;
        QTest::addRow("%s, busy", qPrintable(language)) << language << 0 << true;
    }
}

void TestLanguages::nothingIsCutOff()
{
    QFETCH(QString, language);
    QFETCH(int, tab);
    QFETCH(bool, isBusy);
    const QTemporaryDir folder;
    const FileDialogUser user(folder.filePath("run.jsonl"));
    const TestPort port;
    SpeakingWindow speaking(language);
    SerialWindow &window = *speaking.driver;
    auto *tabs = window.find<QTabWidget>("tabWidget");
    tabs->setCurrentIndex(tab);
    if (isBusy) {
        window.click("pushButton_Record");
        window.open(port);
        window.setRow(0, "01", "0300", "01");
        window.checkRow(0);
        window.edit("lineEdit_Repeat")->setText("1000");
        window.click("pushButton_Start_Loop");
        window.window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window.window()));
        QTest::keyClick(&window.window(), Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(window.messageCount() > 0);
        window.messages()->setFocus();
        QTest::keyClick(window.messages(), Qt::Key_H, Qt::ControlModifier);
        QTRY_VERIFY(window.find<QLabel>("label_Held")->isVisible());
    }
    QTRY_COMPARE(cutOff(window.window()), QString());
    QCOMPARE(window.window().size(), QSize(1120, 760));
    QVERIFY(tabs->tabBar()->sizeHint().width() <= tabs->width());
}

void TestLanguages::headersAreWhole_data()
{
    addWindowLanguages();
}

void TestLanguages::headersAreWhole()
{
    QFETCH(QString, language);
    const SpeakingWindow speaking(language);
    QCOMPARE(cutOffHeaders(*speaking.driver->commands()), QString());
    QCOMPARE(cutOffHeaders(*speaking.driver->messages()), QString());
}

void TestLanguages::theEditorIsWhole_data()
{
    addWindowLanguages();
}

void TestLanguages::theEditorIsWhole()
{
    QFETCH(QString, language);
    QCOMPARE(cutOffInEditor(language), cutOffInEditor({}));
}

void TestLanguages::messagesAreTranslated_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");

    QTest::newRow("English") << ""
                             << "Message"
                             << "Please open the Com Port!";
    QTest::newRow("German") << "de"
                            << "Meldung"
                            << "Bitte den COM-Port öffnen!";
    QTest::newRow("Chinese") << "zh_CN"
                             << "消息"
                             << "请打开串口！";
}

void TestLanguages::messagesAreTranslated()
{
    QFETCH(QString, language);
    MessageBoxes boxes;
    SpeakingWindow speaking(language);
    speaking.driver->click("pushButton_SendAll");
    QTEST(boxes.titles().value(0), "title");
    QTEST(boxes.texts().value(0), "text");
}

void TestLanguages::questionsHaveTranslatedButtons_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("buttons");

    QTest::newRow("English") << "" << QStringList{"No", "Yes"};
    QTest::newRow("German") << "de" << QStringList{"Ja", "Nein"};
    QTest::newRow("Chinese") << "zh_CN" << QStringList{"否(N)", "是(Y)"};
}

void TestLanguages::questionsHaveTranslatedButtons()
{
    QFETCH(QString, language);
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::No);
    SpeakingWindow speaking(language);
    QStringList captions;
    connect(&boxes, &MessageBoxes::shown, this, [&captions] {
        for (const auto *button :
             QApplication::activeModalWidget()->findChildren<QPushButton *>()) {
            captions += button->text().remove('&');
        }
    });
    speaking.driver->setRow(0, "03", "", "");
    speaking.driver->window().close();
    captions.sort();
    QTEST(captions, "buttons");
}

void TestLanguages::eventsAreShownTranslated_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("shown");

    QTest::newRow("English") << ""
                             << "Insert ";
    QTest::newRow("German") << "de"
                            << "Eingesteckt ";
    QTest::newRow("Chinese") << "zh_CN"
                             << "插入 ";
}

void TestLanguages::eventsAreShownTranslated()
{
    QFETCH(QString, language);
    QFETCH(QString, shown);
    SpeakingWindow speaking(language);
    SerialWindow &window = *speaking.driver;
    const TestPort port;
    QVERIFY(QFile::link(port.path(), portLink()));
    QTRY_COMPARE(window.messageCount(), 1);
    QCOMPARE(window.message(0), QStringList({"Uart", "", "", "", "", shown + portLink(), ""}));
    QCOMPARE(window.records().records().first().text.english, "Insert " + portLink());

    // What is read is what is found.
    QTest::keyClick(&window.window(), Qt::Key_F, Qt::ControlModifier);
    window.edit("lineEdit_Find")->setText(shown.trimmed());
    QVERIFY(!window.messages()->isRowHidden(0));
    window.edit("lineEdit_Find")->setText("nowhere");
    QVERIFY(window.messages()->isRowHidden(0));
}

void TestLanguages::filesAreTheSameInEachLanguage()
{
    const QVector<QByteArray> english = filesOfSession({});
    QCOMPARE(english.size(), 4);
    QVERIFY(english.at(0).contains(R"("ev":"close")"));
    QVERIFY(english.at(1).contains("03 0010 0001"));
    QVERIFY(english.at(2).startsWith("1, 5A A5"));
    QVERIFY(english.at(3).contains("LastSavePath"));
    for (const QString &language : translatedLanguages) {
        init();
        QCOMPARE(filesOfSession(language), english);
    }
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
