#include "widgets/placement.h"

#include <QHeaderView>
#include <QScreen>
#include <QTableWidget>
#include <QtTest>

class TestPlacement : public QObject
{
    Q_OBJECT

private slots:
    void aRowIsNotCovered_data();
    void aRowIsNotCovered();
    void aRowIsCoveredAsLittleAsCanBe_data();
    void aRowIsCoveredAsLittleAsCanBe();
};

namespace {

constexpr int heightOfRows = 36;
constexpr int placedRows = 9;

/// A table at this height of the screen, in a window with a frame.
class PlacedTable : public QTableWidget
{
public:
    explicit PlacedTable(int y)
        : QTableWidget(placedRows, 2)
    {
        verticalHeader()->setDefaultSectionSize(heightOfRows);
        move(0, y);
        resize(300, 300);
        show();
    }

    QRect row(int number) const
    {
        const QRect cell = visualRect(model()->index(number, 0));
        return {viewport()->mapToGlobal(cell.topLeft()), cell.size()};
    }
};

QRect screenOf(const QWidget &widget)
{
    return widget.screen()->availableGeometry();
}

/// Where a window of this height stands, frame and all, once it is shown beside the row.
QRect placeOf(const PlacedTable &table, int row, int height)
{
    QWidget window;
    window.resize(200, height);
    placeBesideRow(window, table, table.model()->index(row, 0));
    window.show();
    return window.frameGeometry();
}

int hiddenOf(const PlacedTable &table, int row, int height)
{
    return (placeOf(table, row, height) & table.row(row)).height();
}

} // namespace

void TestPlacement::aRowIsNotCovered_data()
{
    QTest::addColumn<int>("row");

    for (int row = 0; row < 7; ++row) {
        QTest::addRow("row %d", row) << row;
    }
}

void TestPlacement::aRowIsNotCovered()
{
    QFETCH(int, row);
    const int screenHeight = screenOf(QWidget()).height();
    for (const int y : {0, screenHeight / 4, screenHeight / 2}) {
        const PlacedTable table(y);
        QVERIFY(table.frameGeometry().size() != table.size());
        const QRect place = placeOf(table, row, 200);
        QVERIFY(!place.intersects(table.row(row)));
        QVERIFY(screenOf(table).contains(place));
        const int gap = place.top() > table.row(row).top()
                            ? place.top() - table.row(row).bottom() - 1
                            : table.row(row).top() - place.bottom() - 1;
        QCOMPARE(gap, 0);
    }
}

void TestPlacement::aRowIsCoveredAsLittleAsCanBe_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("below");

    QTest::newRow("above the middle") << 0 << true;
    QTest::newRow("below the middle") << 6 << false;
}

void TestPlacement::aRowIsCoveredAsLittleAsCanBe()
{
    QFETCH(int, row);
    QFETCH(bool, below);
    const QRect screen = screenOf(QWidget());
    const PlacedTable table(screen.center().y() - 150);
    const int roomBelow = screen.bottom() - table.row(row).bottom();
    const int roomAbove = table.row(row).top() - screen.top();
    const int room = std::max(roomAbove, roomBelow);
    const int frame = table.frameGeometry().height() - table.height();
    const int height = room + 10 - frame;
    const QRect place = placeOf(table, row, height);
    QVERIFY(screen.contains(place));
    QCOMPARE(place.top() > screen.top(), below);
    QVERIFY(hiddenOf(table, row, height) < 20);
}

QTEST_MAIN(TestPlacement)
#include "tst_placement.moc"
