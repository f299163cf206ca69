#include "logitem.h"
#include "plaincelldelegate.h"
#include "tablelook.h"

#include <QTableWidget>
#include <QtTest>

Q_DECLARE_METATYPE(LogItem::Colour)

class TestPlainCellDelegate : public QObject
{
    Q_OBJECT

private slots:
    void cellsLookAsTheStyleSheetHasThem_data();
    void cellsLookAsTheStyleSheetHasThem();
};

namespace {

constexpr int columns = 2;
constexpr int rows = 3;

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
    QTest::addColumn<LogItem::Colour>("colour");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("width");
    QTest::addColumn<qreal>("ratio");

    const QString data = QStringLiteral(" 01 02 84 0A ");
    struct Look
    {
        const char *name;
        LogItem::Colour colour;
        Qt::Alignment alignment;
    };
    for (const Look &look : {Look{"sent, centred", LogItem::Colour::Plain, Qt::AlignHCenter},
                             Look{"received, left", LogItem::Colour::Received, Qt::AlignLeft}}) {
        for (const QString &text : {QString(), QStringLiteral("1025"), data, data.repeated(20)}) {
            for (const int width : {60, 103, 300}) {
                for (const qreal ratio : {1.0, 2.0}) {
                    const QString name = QString("%1, %2 characters, %3 wide, x%4")
                                             .arg(look.name)
                                             .arg(text.size())
                                             .arg(width)
                                             .arg(ratio);
                    QTest::newRow(qPrintable(name))
                        << text << look.colour << int(look.alignment | Qt::AlignVCenter) << width
                        << ratio;
                }
            }
        }
    }
}

void TestPlainCellDelegate::cellsLookAsTheStyleSheetHasThem()
{
    QFETCH(QString, text);
    QFETCH(LogItem::Colour, colour);
    QFETCH(int, alignment);
    QFETCH(int, width);
    QFETCH(qreal, ratio);

    QTableWidget table;
    styleTable(table, columns, rows);
    for (int column = 0; column < columns; ++column) {
        table.setColumnWidth(column, width);
        for (int row = 0; row < rows; ++row) {
            table.setItem(row, column, new LogItem(text, Qt::Alignment(alignment), colour));
        }
    }
    table.resize(columns * width + 20, 180);
    table.show();
    table.selectRow(1);

    const QImage byStyle = picture(table, ratio);
    PlainCellDelegate delegate;
    table.setItemDelegate(&delegate);
    QCOMPARE(picture(table, ratio), byStyle);
}

QTEST_MAIN(TestPlainCellDelegate)

#include "tst_plaincelldelegate.moc"
