// Records numbered events until it is killed, about 20 a millisecond: recordflood FILE

#include "recording/recorder.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Recorder recorder;
    RecordingPlan plan;
    plan.path = QCoreApplication::arguments().value(1);
    plan.limits.freeBytes = 0;
    plan.head.time = ArrivalTime::now();
    recorder.start(plan);
    QTimer timer;
    int number = 0;
    QObject::connect(&timer, &QTimer::timeout, [&recorder, &number] {
        constexpr int eventsAtOnce = 20;
        for (int i = 0; i < eventsAtOnce; ++i) {
            RecordEvent event;
            event.kind = RecordEvent::Kind::Received;
            event.time = ArrivalTime::now();
            event.bytes = "0123456789";
            event.row = ++number;
            recorder.record(event);
        }
    });
    timer.start(1);
    std::puts("recording");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
