#include "app/headerfield.h"
#include "session/session.h"

#include <QtTest>

/// The field of the start bytes, without the window.
class TestHeaderField : public QObject
{
    Q_OBJECT

private slots:
    void aTextThatIsNoHeaderIsMarked_data();
    void aTextThatIsNoHeaderIsMarked();
    void theSessionGetsWhatIsTyped();
    void theSessionGetsTheTextThatIsThereAlready();
    void nothingIsToldWhileSomebodyTypes();
};

void TestHeaderField::aTextThatIsNoHeaderIsMarked_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isRight");

    QTest::newRow("two bytes") << "0x5A,0xA5" << true;
    QTest::newRow("one byte") << "0x5A" << false;
    QTest::newRow("no byte") << "zz" << false;
}

void TestHeaderField::aTextThatIsNoHeaderIsMarked()
{
    QFETCH(QString, typed);
    HeaderField field;
    QTest::keyClicks(&field, typed);
    QCOMPARE(field.text(), typed);
    QTEST(field.toolTip().isEmpty(), "isRight");
}

void TestHeaderField::theSessionGetsWhatIsTyped()
{
    Session session({}, {});
    HeaderField field;
    field.feed(session);
    QTest::keyClicks(&field, "0x11,0x22");
    const StartBytes bytes = session.receivedHeader().startBytes();
    QCOMPARE(int(bytes.first), 0x11);
    QCOMPARE(int(bytes.second), 0x22);
}

void TestHeaderField::theSessionGetsTheTextThatIsThereAlready()
{
    Session session({}, {});
    HeaderField field;
    field.setText("0x33,0x44");
    field.feed(session);
    QCOMPARE(int(session.receivedHeader().startBytes().first), 0x33);
}

void TestHeaderField::nothingIsToldWhileSomebodyTypes()
{
    Session session({}, {});
    QSignalSpy told(&session.receivedHeader(), &ReceivedHeader::unreadable);
    HeaderField field;
    field.feed(session);
    QTest::keyClicks(&field, "0x1");
    session.receivedHeader().startBytes();
    QCoreApplication::processEvents();
    QCOMPARE(told.count(), 0);
    QTRY_COMPARE(told.count(), 1);
}

QTEST_MAIN(TestHeaderField)
#include "tst_headerfield.moc"
