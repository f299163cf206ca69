#include "app/liststate.h"

#include <QSignalSpy>
#include <QtTest>

class TestListState : public QObject
{
    Q_OBJECT

private slots:
    void beginsWithoutFileAndUnmodified();
    void theTitleIsTheNameAndTheMark();
    void aChangeIsToldOnce();
};

void TestListState::beginsWithoutFileAndUnmodified()
{
    const ListState list;
    QVERIFY(!list.isModified());
    QCOMPARE(list.path(), QString());
    QCOMPARE(list.title(), QString());
}

void TestListState::theTitleIsTheNameAndTheMark()
{
    ListState list;
    list.setModified();
    QCOMPARE(list.title(), QString("*"));
    list.setStored("/some/where/pump.txt");
    QCOMPARE(list.title(), QString("pump.txt"));
    QCOMPARE(list.path(), QString("/some/where/pump.txt"));
    list.setModified();
    QCOMPARE(list.title(), QString("pump.txt*"));
    QVERIFY(list.isModified());
    list.setNew();
    QCOMPARE(list.title(), QString());
    QVERIFY(!list.isModified());
}

void TestListState::aChangeIsToldOnce()
{
    ListState list;
    const QSignalSpy changes(&list, &ListState::changed);
    list.setNew();
    QCOMPARE(changes.size(), 0);
    list.setModified();
    list.setModified();
    QCOMPARE(changes.size(), 1);
    list.setStored("/a");
    list.setStored("/a");
    QCOMPARE(changes.size(), 2);
    list.setStored("/b");
    QCOMPARE(changes.size(), 3);
}

QTEST_APPLESS_MAIN(TestListState)
#include "tst_liststate.moc"
