#include "widgets/tableitems.h"
#include "windowdriver.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QtTest>

namespace Column = CommandColumn;

class TestTips : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aLongTextIsWrapped();
    void theTipStaysWhileTheMouseRests_data();
    void theTipStaysWhileTheMouseRests();
    void theTipGoesWithTheMouse();
    void aCellThatIsCutOffHasATip_data();
    void aCellThatIsCutOffHasATip();
    void aCellThatIsNotCutOffHasNone();
    void aTipShowsMarkupAsItIs();

private:
    static void moveTo(const QTableWidget &table, int row, int column);
    static void restOn(const QTableWidget &table, int row, int column);

    std::unique_ptr<WindowDriver> m_window;
};

namespace {

constexpr int tipColumn = 5;

QString byteText(int count)
{
    QString text;
    for (int i = 0; i < count; ++i) {
        text.append(QString::number(i % 256, 16).rightJustified(2, '0').toUpper()).append(' ');
    }
    return text.trimmed();
}

} // namespace

void TestTips::init()
{
    m_window = std::make_unique<WindowDriver>();
    m_window->window().resize(1120, 760);
    QCoreApplication::processEvents();
    QTest::mouseMove(&m_window->window(), QPoint(5, 5));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestTips::cleanup()
{
    m_window.reset();
}

void TestTips::moveTo(const QTableWidget &table, int row, int column)
{
    QTest::mouseMove(table.viewport(),
                     table.visualRect(table.model()->index(row, column)).center());
}

/// What a mouse that no longer moves makes Qt ask for.
void TestTips::restOn(const QTableWidget &table, int row, int column)
{
    const QPoint place = table.visualRect(table.model()->index(row, column)).center();
    QHelpEvent event(QEvent::ToolTip, place, table.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(table.viewport(), &event);
}

void TestTips::aLongTextIsWrapped()
{
    QTableWidget *log = m_window->messages();
    setLeftItem(*log, 0, tipColumn, byteText(250));
    moveTo(*log, 0, tipColumn);
    QTRY_VERIFY(QToolTip::isVisible());
    const QStringList lines = QToolTip::text().split('\n');
    QCOMPARE(lines.size(), 16);
    for (int i = 0; i < 15; ++i) {
        QCOMPARE(lines.at(i).simplified().split(' ').size(), 16);
    }
    QCOMPARE(QToolTip::text().simplified(), byteText(250));
}

void TestTips::theTipStaysWhileTheMouseRests_data()
{
    QTest::addColumn<QString>("table");

    QTest::newRow("CRC of a command") << "tableWidget_Register";
    QTest::newRow("Data of a message") << "tableWidget_Message";
}

void TestTips::theTipStaysWhileTheMouseRests()
{
    QFETCH(QString, table);
    auto *widget = m_window->find<QTableWidget>(qPrintable(table));
    {
        const QSignalBlocker blocker(widget);
        setLeftItem(*widget, 0, tipColumn, byteText(60));
    }
    moveTo(*widget, 0, tipColumn);
    QTRY_VERIFY(QToolTip::isVisible());
    restOn(*widget, 0, tipColumn);
    // A tip that is to go goes after 300 ms at the latest.
    QTest::qWait(400);
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text().simplified(), byteText(60));
}

void TestTips::theTipGoesWithTheMouse()
{
    QTableWidget *log = m_window->messages();
    setLeftItem(*log, 0, tipColumn, byteText(60));
    moveTo(*log, 0, tipColumn);
    QTRY_VERIFY(QToolTip::isVisible());
    moveTo(*log, 0, 2);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestTips::aCellThatIsCutOffHasATip_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("column");

    QTest::newRow("Description") << "tableWidget_Register" << int(Column::Description);
    QTest::newRow("CMD") << "tableWidget_Register" << int(Column::Cmd);
    QTest::newRow("Data of a command") << "tableWidget_Register" << int(Column::Data);
    QTest::newRow("Header of a message") << "tableWidget_Message" << 1;
}

void TestTips::aCellThatIsCutOffHasATip()
{
    QFETCH(QString, table);
    QFETCH(int, column);
    auto *widget = m_window->find<QTableWidget>(qPrintable(table));
    setLeftItem(*widget, 0, column, byteText(100));
    restOn(*widget, 0, column);
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text().simplified(), byteText(100));
    QVERIFY(QToolTip::text().contains('\n'));
}

void TestTips::aCellThatIsNotCutOffHasNone()
{
    setLeftItem(*m_window->commands(), 0, Column::Data, byteText(2));
    restOn(*m_window->commands(), 0, Column::Data);
    restOn(*m_window->commands(), 0, Column::Select);
    restOn(*m_window->commands(), 1, Column::Description);
    QVERIFY(!QToolTip::isVisible());
}

void TestTips::aTipShowsMarkupAsItIs()
{
    setLeftItem(*m_window->commands(), 0, Column::Description,
                "<b>bold</b> and much else that finds no room here");
    restOn(*m_window->commands(), 0, Column::Description);
    QTRY_VERIFY(QToolTip::isVisible());
    QVERIFY2(QToolTip::text().contains("&lt;b&gt;"), qPrintable(QToolTip::text()));
}

QTEST_MAIN(TestTips)
#include "tst_tips.moc"
