// ThreadSanitizer sees our code but not Qt's, so it doesn't know how Qt's mutexes, threads and
// queued signals order things. This tells it, for the functions of Qt that our code calls. Only
// builds with ThreadSanitizer have it.

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <dlfcn.h>

extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier)
void __tsan_acquire(void *address);
void __tsan_release(void *address);
// NOLINTEND(bugprone-reserved-identifier)
void AnnotateIgnoreWritesBegin(const char *file, int line);
void AnnotateIgnoreWritesEnd(const char *file, int line);
}

namespace {

/// Stands for all that threads hand over by queued signals, and by ending.
char handedOver = 0;

template<typename Function>
Function original(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool isMainThread()
{
    const QCoreApplication *const application = QCoreApplication::instance();
    return application == nullptr || QThread::currentThread() == application->thread();
}

/// Sees every event of the main thread before its receiver does.
class QueuedCalls : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::MetaCall) {
            __tsan_acquire(&handedOver);
        }
        return false;
    }
};

void watchQueuedCalls()
{
    QCoreApplication *const application = QCoreApplication::instance();
    application->installEventFilter(new QueuedCalls(application));
}
Q_COREAPP_STARTUP_FUNCTION(watchQueuedCalls)

} // namespace

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto lockMutex = original<void (*)(QMutex *)>("_ZN6QMutex4lockEv");
    lockMutex(this);
    __tsan_acquire(this);
}

void QMutex::unlock() noexcept
{
    static const auto unlockMutex = original<void (*)(QMutex *)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    unlockMutex(this);
}

bool QWaitCondition::wait(QMutex *mutex, QDeadlineTimer deadline)
{
    static const auto waitFor = original<bool (*)(QWaitCondition *, QMutex *, QDeadlineTimer)>(
        "_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    __tsan_release(mutex);
    const bool woken = waitFor(this, mutex, deadline);
    __tsan_acquire(mutex);
    return woken;
}

/// A call for another thread is queued inside Qt, too.
bool QMetaObject::invokeMethodImpl(QObject *object, QtPrivate::QSlotObjectBase *slot,
                                   Qt::ConnectionType type, void *result)
{
    using Invoke = bool (*)(QObject *, QtPrivate::QSlotObjectBase *, Qt::ConnectionType, void *);
    static const auto invoke = original<Invoke>("_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9"
                                                "QtPrivate15QSlotObjectBaseEN2Qt14Connection"
                                                "TypeEPv");
    __tsan_release(&handedOver);
    return invoke(object, slot, type, result);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static const auto waitFor =
        original<bool (*)(QThread *, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool ended = waitFor(this, deadline);
    __tsan_acquire(&handedOver);
    return ended;
}

void QThread::start(Priority priority)
{
    static const auto startThread =
        original<void (*)(QThread *, Priority)>("_ZN7QThread5startENS_8PriorityE");
    // The thread itself emits it, as the last thing it does.
    connect(this, &QThread::finished, [] { __tsan_release(&handedOver); });
    startThread(this, priority);
}

/// A signal of another thread is copied and queued inside Qt, before anyone could be told.
void QMetaObject::activate(QObject *sender, const QMetaObject *metaObject, int signal,
                           void **values)
{
    using Activate = void (*)(QObject *, const QMetaObject *, int, void **);
    static const auto activateSignal =
        original<Activate>("_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    if (isMainThread()) {
        activateSignal(sender, metaObject, signal, values);
        return;
    }
    __tsan_release(&handedOver);
    AnnotateIgnoreWritesBegin(__FILE__, __LINE__);
    activateSignal(sender, metaObject, signal, values);
    AnnotateIgnoreWritesEnd(__FILE__, __LINE__);
}
