#include "logcolours.h"
#include "widgets/plaincelldelegate.h"
#include "widgets/tablelook.h"

#include <QSet>
#include <QTableWidget>
#include <QtTest>

class TestPlainCellDelegate : public QObject
{
    Q_OBJECT

private slots:
    void cellsLookAsTheStyleSheetHasThem_data();
    void cellsLookAsTheStyleSheetHasThem();
    void aSelectedRowIsMarkedInItsFirstCell();
    void aColouredTextKeepsItsColourWhenSelected();
    void whatIsSetOnACellIsShown_data();
    void whatIsSetOnACellIsShown();
    void aNewFontIsTakenUp();
};

namespace {

constexpr int columns = 2;
constexpr int itemRows = 3;
constexpr int barWidth = 4;
const QColor barColour(0x00, 0x6F, 0xCF);
const QColor received(0, 130, 255);

void fill(QTableWidget &table, const QString &text, LogItems::Colour colour,
          Qt::AlignmentFlag alignment, int width)
{
    styleTable(table, columns, itemRows);
    for (int column = 0; column < columns; ++column) {
        table.setColumnWidth(column, width);
        for (int row = 0; row < itemRows; ++row) {
            table.setItem(row, column, LogItems().make(text, alignment, colour));
        }
    }
    table.resize(columns * width + 20, 180);
    table.show();
}

QImage picture(QTableWidget &table, qreal ratio)
{
    QImage image(table.viewport()->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    table.viewport()->render(&image);
    return image;
}

} // namespace

void TestPlainCellDelegate::cellsLookAsTheStyleSheetHasThem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<LogItems::Colour>("colour");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("width");
    QTest::addColumn<qreal>("ratio");

    const QString data = QStringLiteral(" 01 02 84 0A ");
    struct Look
    {
        const char *name;
        LogItems::Colour colour;
        Qt::AlignmentFlag alignment;
    };
    for (const Look &look : {Look{"sent, centred", LogItems::Colour::Plain, Qt::AlignHCenter},
                             Look{"received, left", LogItems::Colour::Received, Qt::AlignLeft}}) {
        for (const QString &text : {QString(), QStringLiteral("1025"), data, data.repeated(20)}) {
            for (const int width : {60, 103, 300}) {
                for (const qreal ratio : {1.0, 2.0}) {
                    const QString name = QString("%1, %2 characters, %3 wide, x%4")
                                             .arg(look.name)
                                             .arg(text.size())
                                             .arg(width)
                                             .arg(ratio);
                    QTest::newRow(qPrintable(name))
                        << text << look.colour << int(look.alignment) << width << ratio;
                }
            }
        }
    }
}

void TestPlainCellDelegate::cellsLookAsTheStyleSheetHasThem()
{
    QFETCH(QString, text);
    QFETCH(LogItems::Colour, colour);
    QFETCH(int, alignment);
    QFETCH(int, width);
    QFETCH(qreal, ratio);

    QTableWidget table;
    fill(table, text, colour, Qt::AlignmentFlag(alignment), width);
    // A selected text with a colour of its own is another matter.
    if (colour == LogItems::Colour::Plain) {
        table.selectRow(1);
        table.setCurrentCell(1, 1, QItemSelectionModel::NoUpdate);
    }

    const QImage byStyle = picture(table, ratio);
    PlainCellDelegate delegate;
    table.setItemDelegate(&delegate);
    const QImage ours = picture(table, ratio);
    const QRect unmarked = ours.rect().adjusted(int(barWidth * ratio), 0, 0, 0);
    QCOMPARE(ours.copy(unmarked), byStyle.copy(unmarked));
}

void TestPlainCellDelegate::aSelectedRowIsMarkedInItsFirstCell()
{
    QTableWidget table;
    fill(table, "01", LogItems::Colour::Plain, Qt::AlignCenter, 60);
    PlainCellDelegate plainDelegate;
    table.setItemDelegate(&plainDelegate);
    table.selectRow(1);
    const QImage look = picture(table, 1);
    for (int row = 0; row < itemRows; ++row) {
        const QRect cell = table.visualRect(table.model()->index(row, 0));
        const QRect bar(cell.topLeft(), QSize(barWidth, cell.height()));
        QImage expected(bar.size(), look.format());
        expected.fill(barColour);
        QCOMPARE(look.copy(bar) == expected, row == 1);
        const QRect second = table.visualRect(table.model()->index(row, 1));
        QVERIFY(look.pixelColor(second.left() + 1, second.center().y()) != barColour);
    }
}

void TestPlainCellDelegate::aColouredTextKeepsItsColourWhenSelected()
{
    QTableWidget table;
    fill(table, "8888", LogItems::Colour::Received, Qt::AlignCenter, 60);
    PlainCellDelegate delegate;
    table.setItemDelegate(&delegate);
    QFont solid = table.font();
    solid.setStyleStrategy(QFont::NoAntialias);
    table.setFont(solid);
    table.selectRow(1);
    const QImage look = picture(table, 1).copy(table.visualRect(table.model()->index(1, 1)));
    QSet<QRgb> colours;
    for (int y = 4; y < look.height() - 4; ++y) {
        for (int x = 4; x < look.width() - 4; ++x) {
            colours.insert(look.pixel(x, y));
        }
    }
    QCOMPARE(colours, QSet<QRgb>({received.rgb(), QColor(0xF5, 0xF5, 0xF5).rgb()}));
}

void TestPlainCellDelegate::whatIsSetOnACellIsShown_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("text") << int(Qt::DisplayRole) << QVariant("01 02");
    QTest::newRow("colour") << int(Qt::ForegroundRole) << QVariant(QBrush(Qt::red));
    QTest::newRow("font") << int(Qt::FontRole) << QVariant(QFont("Sans", 20));
    QTest::newRow("right") << int(Qt::TextAlignmentRole)
                           << QVariant(int(Qt::AlignRight | Qt::AlignVCenter));
}

void TestPlainCellDelegate::whatIsSetOnACellIsShown()
{
    QFETCH(int, role);
    QFETCH(QVariant, value);

    QTableWidget table;
    styleTable(table, 1, 1);
    table.setItem(0, 0, LogItems().make("5A A5", Qt::AlignLeft, LogItems::Colour::Plain));
    PlainCellDelegate delegate;
    table.setItemDelegate(&delegate);
    table.show();
    const QImage before = picture(table, 1);
    table.item(0, 0)->setData(role, value);
    const QImage byUs = picture(table, 1);
    QVERIFY(byUs != before);
    table.setItemDelegate(new QStyledItemDelegate(&table));
    QCOMPARE(byUs, picture(table, 1));
}

void TestPlainCellDelegate::aNewFontIsTakenUp()
{
    QTableWidget table;
    styleTable(table, 1, 1);
    table.setItem(0, 0, LogItems().make("5A A5", Qt::AlignHCenter, LogItems::Colour::Plain));
    PlainCellDelegate delegate;
    table.setItemDelegate(&delegate);
    table.show();
    const QImage before = picture(table, 1);
    table.setFont(QFont("Sans", 20));
    const QImage byUs = picture(table, 1);
    QVERIFY(byUs != before);
    table.setItemDelegate(new QStyledItemDelegate(&table));
    QCOMPARE(byUs, picture(table, 1));
}

QTEST_MAIN(TestPlainCellDelegate)

#include "tst_plaincelldelegate.moc"
