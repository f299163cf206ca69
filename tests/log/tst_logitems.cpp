#include "logcolours.h"

#include <QTableWidget>
#include <QtTest>

class TestLogItems : public QObject
{
    Q_OBJECT

private slots:
    void aCellHasItsLook_data();
    void aCellHasItsLook();
    void whatIsSetCounts();
    void cellsAreChangedOneByOne();
    void aChangeIsAnnounced();
    void aCellIsWrittenWhole();
};

namespace {

const QBrush receivedBrush(QColor(0, 130, 255));

QTableWidgetItem *newReceivedCell()
{
    return LogItems().make("5A A5", Qt::AlignLeft, LogItems::Colour::Received);
}

} // namespace

void TestLogItems::aCellHasItsLook_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<LogItems::Colour>("colour");
    QTest::addColumn<QBrush>("foreground");

    QTest::newRow("left") << int(Qt::AlignLeft) << LogItems::Colour::Plain << QBrush();
    QTest::newRow("centred") << int(Qt::AlignHCenter) << LogItems::Colour::Plain << QBrush();
    QTest::newRow("left, received")
        << int(Qt::AlignLeft) << LogItems::Colour::Received << receivedBrush;
    QTest::newRow("centred, received")
        << int(Qt::AlignHCenter) << LogItems::Colour::Received << receivedBrush;
}

void TestLogItems::aCellHasItsLook()
{
    QFETCH(int, alignment);
    QFETCH(LogItems::Colour, colour);
    QFETCH(QBrush, foreground);
    for (const QString &text : {QString("5A A5"), QString()}) {
        const QScopedPointer<QTableWidgetItem> item(
            LogItems().make(text, Qt::AlignmentFlag(alignment), colour));
        QCOMPARE(item->text(), text);
        QCOMPARE(item->data(Qt::EditRole).toString(), text);
        QCOMPARE(item->foreground(), foreground);
        QCOMPARE(item->textAlignment(), alignment | int(Qt::AlignVCenter));
        QCOMPARE(item->flags(), Qt::ItemFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled));
    }
}

void TestLogItems::whatIsSetCounts()
{
    const QScopedPointer<QTableWidgetItem> item(newReceivedCell());
    item->setText({});
    QCOMPARE(item->text(), QString());
    item->setData(Qt::EditRole, 5);
    QCOMPARE(item->data(Qt::DisplayRole), QVariant(5));
    item->setTextAlignment(Qt::AlignRight);
    QCOMPARE(item->textAlignment(), int(Qt::AlignRight));
    item->setData(Qt::ForegroundRole, {});
    QVERIFY(!item->data(Qt::ForegroundRole).isValid());
}

void TestLogItems::cellsAreChangedOneByOne()
{
    const LogItems items;
    const QScopedPointer<QTableWidgetItem> one(
        items.make({}, Qt::AlignLeft, LogItems::Colour::Plain));
    const QScopedPointer<QTableWidgetItem> other(
        items.make({}, Qt::AlignLeft, LogItems::Colour::Plain));
    one->setText("00");
    one->setForeground(Qt::red);
    QCOMPARE(other->text(), QString());
    QCOMPARE(other->foreground(), QBrush());
    const QScopedPointer<QTableWidgetItem> next(
        items.make({}, Qt::AlignLeft, LogItems::Colour::Plain));
    QCOMPARE(next->text(), QString());
}

void TestLogItems::aChangeIsAnnounced()
{
    QTableWidget table(1, 1);
    table.setItem(0, 0, newReceivedCell());
    const QSignalSpy changed(&table, &QTableWidget::cellChanged);
    table.item(0, 0)->setText("00");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(table.model()->index(0, 0).data(), QVariant("00"));
}

void TestLogItems::aCellIsWrittenWhole()
{
    const QScopedPointer<QTableWidgetItem> item(newReceivedCell());
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    item->write(out);
    QDataStream in(bytes);
    QTableWidgetItem copy;
    copy.read(in);
    QCOMPARE(copy.text(), QString("5A A5"));
    QCOMPARE(copy.foreground(), receivedBrush);
    QCOMPARE(copy.textAlignment(), item->textAlignment());
}

QTEST_MAIN(TestLogItems)

#include "tst_logitems.moc"
