// SPDX-License-Identifier: LGPL-2.1-or-later

// Qt is not built for the thread sanitizer, which therefore does not see what Qt orders: mutexes
// and semaphores, pools of threads, the end of threads, and what is posted to a thread. These take
// the place of Qt's functions in a test and tell it.

#include <QCoreApplication>
#include <QEvent>
#include <QMutex>
#include <QRunnable>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <functional>
#include <memory>

namespace {

template <typename Function>
Function* FromQt(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(dlopen("libQt5Core.so.5", RTLD_LAZY), name));
}

// One for all: who gets an event knows of all that was posted before, who has waited for a thread
// of what all have done.
char s_posted;
char s_done;

/// Notes what is delivered to the thread that posted things are for.
const bool s_isWatching =
    QInternal::registerCallback(QInternal::EventNotifyCallback, [](void** data) {
        const QEvent::Type type = static_cast<const QEvent*>(data[1])->type();
        if (type == QEvent::MetaCall || type == QEvent::DeferredDelete || type >= QEvent::User)
            __tsan_acquire(&s_posted);
        return false;
    });

/// What a pool is to do.
class Task : public QRunnable
{
public:
    explicit Task(std::function<void()> work) : m_work(std::move(work)) { __tsan_release(this); }
    void run() override
    {
        __tsan_acquire(this);
        m_work();
        m_work = nullptr;
        __tsan_release(&s_done);
    }

private:
    std::function<void()> m_work;
};

Task* TaskOf(QRunnable* runnable)
{
    return new Task([runnable] {
        const bool isOurs = runnable->autoDelete();
        runnable->run();
        if (isOurs)
            delete runnable;
    });
}

} // namespace

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT
{
    static auto* const next = FromQt<void(QMutex*)>("_ZN6QMutex4lockEv");
    next(this);
    __tsan_acquire(this);
}

void QMutex::unlock() noexcept
{
    static auto* const next = FromQt<void(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    next(this);
}

void QSemaphore::release(int count)
{
    static auto* const next = FromQt<void(QSemaphore*, int)>("_ZN10QSemaphore7releaseEi");
    __tsan_release(this);
    next(this, count);
}

void QSemaphore::acquire(int count)
{
    static auto* const next = FromQt<void(QSemaphore*, int)>("_ZN10QSemaphore7acquireEi");
    next(this, count);
    __tsan_acquire(this);
}

bool QSemaphore::tryAcquire(int count, int timeout)
{
    static auto* const next = FromQt<bool(QSemaphore*, int, int)>("_ZN10QSemaphore10tryAcquireEii");
    const bool isTaken = next(this, count, timeout);
    if (isTaken)
        __tsan_acquire(this);
    return isTaken;
}

void QThreadPool::start(QRunnable* runnable, int priority)
{
    static auto* const next =
        FromQt<void(QThreadPool*, QRunnable*, int)>("_ZN11QThreadPool5startEP9QRunnablei");
    next(this, TaskOf(runnable), priority);
}

void QThreadPool::start(std::function<void()> work, int priority)
{
    static auto* const next =
        FromQt<void(QThreadPool*, QRunnable*, int)>("_ZN11QThreadPool5startEP9QRunnablei");
    next(this, new Task(std::move(work)), priority);
}

bool QThreadPool::tryStart(std::function<void()> work)
{
    static auto* const next =
        FromQt<bool(QThreadPool*, QRunnable*)>("_ZN11QThreadPool8tryStartEP9QRunnable");
    auto task = std::make_unique<Task>(std::move(work));
    const bool isStarted = next(this, task.get());
    if (isStarted)
        static_cast<void>(task.release());
    return isStarted;
}

bool QThreadPool::waitForDone(int timeout)
{
    static auto* const next = FromQt<bool(QThreadPool*, int)>("_ZN11QThreadPool11waitForDoneEi");
    const bool isDone = next(this, timeout);
    __tsan_acquire(&s_done);
    return isDone;
}

// QThreadPool::~QThreadPool(), which waits.
void EndPool(QThreadPool* pool) __asm__("_ZN11QThreadPoolD1Ev");
void EndPool(QThreadPool* pool)
{
    static auto* const next = FromQt<void(QThreadPool*)>("_ZN11QThreadPoolD1Ev");
    next(pool);
    __tsan_acquire(&s_done);
}

// As the last thing that a thread with events of its own does.
void QThread::quit()
{
    static auto* const next = FromQt<void(QThread*)>("_ZN7QThread4quitEv");
    __tsan_release(&s_done);
    next(this);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static auto* const next =
        FromQt<bool(QThread*, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool hasEnded = next(this, deadline);
    __tsan_acquire(&s_done);
    return hasEnded;
}

bool QThread::wait(unsigned long timeout)
{
    static auto* const next = FromQt<bool(QThread*, unsigned long)>("_ZN7QThread4waitEm");
    const bool hasEnded = next(this, timeout);
    __tsan_acquire(&s_done);
    return hasEnded;
}

void QObject::deleteLater()
{
    static auto* const next = FromQt<void(QObject*)>("_ZN7QObject11deleteLaterEv");
    __tsan_release(&s_posted);
    next(this);
}

void QCoreApplication::postEvent(QObject* receiver, QEvent* event, int priority)
{
    static auto* const next =
        FromQt<void(QObject*, QEvent*, int)>("_ZN16QCoreApplication9postEventEP7QObjectP6QEventi");
    __tsan_release(&s_posted);
    next(receiver, event, priority);
}

void QMetaObject::activate(QObject* sender, const QMetaObject* meta, int signal, void** arguments)
{
    static auto* const next = FromQt<void(QObject*, const QMetaObject*, int, void**)>(
        "_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    __tsan_release(&s_posted);
    next(sender, meta, signal, arguments);
}

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot,
                                   Qt::ConnectionType type, void* result)
{
    static auto* const next =
        FromQt<bool(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)>(
            "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt"
            "14ConnectionTypeEPv");
    __tsan_release(&s_posted);
    return next(object, slot, type, result);
}
