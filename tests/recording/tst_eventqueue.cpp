#include "recording/eventqueue.h"
#include "recordingsamples.h"

#include <QtTest>

#include <thread>

class TestEventQueue : public QObject
{
    Q_OBJECT

private slots:
    void itGivesWhatWasPutInInOrder();
    void enoughWakesTheReader();
    void closingWakesTheReader();
    void whatItHasNoRoomForIsCounted();
    void itHasRoomAgainWhenItWasRead();
    void nothingIsLostBetweenThreads();
};

namespace {

RecordEvent eventOfSize(int bytes)
{
    RecordEvent event;
    event.kind = RecordEvent::Kind::Received;
    event.bytes = QByteArray(bytes, 'x');
    return event;
}

} // namespace

void TestEventQueue::itGivesWhatWasPutInInOrder()
{
    EventQueue queue;
    for (const RecordEvent &event : sampleEvents()) {
        QVERIFY(queue.put(event));
    }
    const EventQueue::Batch batch = queue.take(0);
    QVERIFY(areSame(batch.events, sampleEvents()));
    QVERIFY(!batch.isLast);
    QVERIFY(queue.take(0).events.isEmpty());
}

void TestEventQueue::enoughWakesTheReader()
{
    EventQueue queue;
    std::thread writer([&queue] { queue.put(eventOfSize(int(EventQueue::bytesToWake))); });
    constexpr int muchTooLong = 1000000;
    const EventQueue::Batch batch = queue.take(muchTooLong);
    writer.join();
    QCOMPARE(batch.events.size(), 1);
}

void TestEventQueue::closingWakesTheReader()
{
    EventQueue queue;
    QVERIFY(queue.put(eventOfSize(1)));
    std::thread writer([&queue] { queue.close(); });
    constexpr int muchTooLong = 1000000;
    const EventQueue::Batch batch = queue.take(muchTooLong);
    writer.join();
    QCOMPARE(batch.events.size(), 1);
    QVERIFY(batch.isLast);
    QVERIFY(!queue.put(eventOfSize(1)));
    QVERIFY(queue.take(muchTooLong).isLast);
}

void TestEventQueue::whatItHasNoRoomForIsCounted()
{
    EventQueue queue;
    const RecordEvent event = eventOfSize(1024 * 1024);
    int taken = 0;
    while (queue.put(event)) {
        ++taken;
    }
    QCOMPARE(taken, 7);
    QVERIFY(!queue.put(eventOfSize(1024 * 1024 + 3)));
    const EventQueue::Batch batch = queue.take(0);
    QCOMPARE(batch.events.size(), 7);
    QCOMPARE(batch.droppedEvents, qint64(2));
    QCOMPARE(batch.droppedBytes, qint64(2 * 1024 * 1024 + 3));
    QCOMPARE(queue.take(0).droppedEvents, qint64(0));
}

void TestEventQueue::itHasRoomAgainWhenItWasRead()
{
    EventQueue queue;
    while (queue.put(eventOfSize(1024 * 1024))) {
    }
    queue.take(0);
    QVERIFY(queue.put(eventOfSize(1024 * 1024)));
}

void TestEventQueue::nothingIsLostBetweenThreads()
{
    EventQueue queue;
    constexpr int count = 20000;
    std::thread writer([&queue] {
        for (int i = 0; i < count; ++i) {
            RecordEvent event = eventOfSize(20);
            event.row = i;
            while (!queue.put(event)) {
                std::this_thread::yield();
            }
        }
        queue.close();
    });
    int next = 0;
    bool isLast = false;
    while (!isLast) {
        const EventQueue::Batch batch = queue.take(10);
        isLast = batch.isLast;
        for (const RecordEvent &event : batch.events) {
            next += event.row == next ? 1 : 0;
        }
    }
    writer.join();
    QCOMPARE(next, count);
}

QTEST_APPLESS_MAIN(TestEventQueue)
#include "tst_eventqueue.moc"
