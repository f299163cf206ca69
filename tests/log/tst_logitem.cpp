#include "log/logitem.h"

#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

class TestLogItem : public QObject
{
    Q_OBJECT

private slots:
    void itAnswersForItsLook();
    void whatIsSetCounts();
    void whatIsTakenAwayIsGone();
    void aChangeIsAnnounced();
    void aCopyIsTheSame();
};

namespace {

const QBrush receivedBrush(QColor(0, 130, 255));

LogItem *newItem()
{
    return new LogItem("5A A5", Qt::AlignLeft | Qt::AlignVCenter, LogItem::Colour::Received);
}

} // namespace

void TestLogItem::itAnswersForItsLook()
{
    const QScopedPointer<LogItem> item(newItem());
    QCOMPARE(item->text(), QString("5A A5"));
    QCOMPARE(item->data(Qt::EditRole), QVariant("5A A5"));
    QCOMPARE(item->foreground(), receivedBrush);
    QCOMPARE(item->textAlignment(), int(Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(item->flags(), Qt::ItemFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled));
}

void TestLogItem::whatIsSetCounts()
{
    const QScopedPointer<LogItem> item(newItem());
    item->setText("00");
    QCOMPARE(item->text(), QString("00"));
    item->setData(Qt::EditRole, 5);
    QCOMPARE(item->data(Qt::DisplayRole), QVariant(5));
    item->setText({});
    QCOMPARE(item->text(), QString());
    item->setForeground(Qt::red);
    QCOMPARE(item->foreground(), QBrush(Qt::red));
    item->setTextAlignment(Qt::AlignRight);
    QCOMPARE(item->textAlignment(), int(Qt::AlignRight));
    item->setData(Qt::UserRole, "mark");
    QCOMPARE(item->data(Qt::UserRole), QVariant("mark"));
}

void TestLogItem::whatIsTakenAwayIsGone()
{
    const QScopedPointer<LogItem> item(newItem());
    item->setData(Qt::DisplayRole, {});
    item->setData(Qt::ForegroundRole, {});
    QCOMPARE(item->text(), QString());
    QVERIFY(!item->data(Qt::ForegroundRole).isValid());
}

void TestLogItem::aChangeIsAnnounced()
{
    QTableWidget table(1, 1);
    table.setItem(0, 0, newItem());
    const QSignalSpy changed(&table, &QTableWidget::cellChanged);
    table.item(0, 0)->setText("00");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(table.model()->index(0, 0).data(), QVariant("00"));
}

void TestLogItem::aCopyIsTheSame()
{
    const QScopedPointer<LogItem> item(newItem());
    item->setText("01");
    const QScopedPointer<QTableWidgetItem> copy(item->clone());
    QCOMPARE(copy->text(), QString("01"));
    QCOMPARE(copy->foreground(), receivedBrush);
    QCOMPARE(copy->flags(), item->flags());
}

QTEST_MAIN(TestLogItem)

#include "tst_logitem.moc"
