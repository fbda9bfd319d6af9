// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Tells the thread sanitizer that what a thread did before it emitted a signal, posted a call or
// ended happens before what another thread does when it receives it. Qt's libraries are not built
// for the sanitizer, so it does not see the locks of their event queues.
//
// What is written between the begin and the end of an emission, such as the copies of the
// arguments, is told at its end only. So a receiver waits until each thread that is in an emission
// has told something; but not for one that sleeps in it, since it may sleep until the receiver is
// done.
//
// All of this goes over one place, since neither side knows the other. So a race between two
// threads is missed if an event passed from the one to the other in between, whatever it was about;
// every other race is still found.

#ifdef __SANITIZE_THREAD__

#include "EmittingThreads.h"

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

/// As Qt's private header has it.
struct QSignalSpyCallbackSet
{
    using BeginCallback = void (*)(QObject *caller, int index, void **arguments);
    using EndCallback = void (*)(QObject *caller, int index);
    BeginCallback signalBegin;
    BeginCallback slotBegin;
    EndCallback signalEnd;
    EndCallback slotEnd;
};

// Of the sanitizer's library; no header declares them.
extern "C" {
void AnnotateIgnoreReadsBegin(const char *file, int line);
void AnnotateIgnoreReadsEnd(const char *file, int line);
void AnnotateIgnoreWritesBegin(const char *file, int line);
void AnnotateIgnoreWritesEnd(const char *file, int line);
}

extern Q_CORE_EXPORT void qt_register_signal_spy_callbacks(QSignalSpyCallbackSet *callbacks);

namespace {

char meetingPlace;

void tellOthers()
{
    __tsan_release(&meetingPlace);
}

void hearOthers()
{
    __tsan_acquire(&meetingPlace);
}

void beginEmission()
{
    tellOthers();
    TsanSupport::enterEmission();
}

void endEmission()
{
    tellOthers();
    TsanSupport::leaveEmission();
}

/// While an event is delivered: what the receiver writes is told at the end, however that comes.
class Delivery
{
public:
    Delivery()
    {
        tellOthers();
        m_interrupted = TsanSupport::interruptEmissions();
        TsanSupport::waitForOtherEmissions();
        hearOthers();
    }
    ~Delivery()
    {
        tellOthers();
        TsanSupport::resumeEmissions(m_interrupted);
    }
    Q_DISABLE_COPY_MOVE(Delivery)

private:
    int m_interrupted = 0;
};

/// Stands in for the delivery of an event, so that something can be done after it as well.
bool deliver(void **data)
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!application) {
        return false;
    }
    const Delivery delivery;
    *static_cast<bool *>(data[2]) =
        application->notify(static_cast<QObject *>(data[0]), static_cast<QEvent *>(data[1]));
    return true;
}

void registerCallbacks()
{
    static QSignalSpyCallbackSet callbacks{[](QObject *, int, void **) { beginEmission(); },
                                           nullptr,
                                           [](QObject *, int) {
                                               endEmission();
                                               hearOthers();
                                           },
                                           nullptr};
    qt_register_signal_spy_callbacks(&callbacks);
    QInternal::registerCallback(QInternal::EventNotifyCallback, deliver);
}

/// Qt counts the references to \a slot down in the receiver's thread, unseen, before the caller may
/// destroy it.
void destroyUnseen(QtPrivate::QSlotObjectBase *slot)
{
    AnnotateIgnoreReadsBegin(__FILE__, __LINE__);
    AnnotateIgnoreWritesBegin(__FILE__, __LINE__);
    slot->destroyIfLastRef();
    AnnotateIgnoreWritesEnd(__FILE__, __LINE__);
    AnnotateIgnoreReadsEnd(__FILE__, __LINE__);
}

template <class Function>
Function qtFunction(const char *symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(registerCallbacks)

// These functions stand before Qt's own of the same name and call them.
#define STANDS_BEFORE(symbol) asm(symbol) __attribute__((visibility("default")))
#define INVOKE_METHOD                                                                              \
    "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14Connection"   \
    "TypeEPv"
#define POST_EVENT "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi"
#define MOVE_TO_THREAD "_ZN7QObject12moveToThreadEP7QThread"
#define WAIT "_ZN7QThread4waitE14QDeadlineTimer"

bool invokeMethod(QObject *object, QtPrivate::QSlotObjectBase *slot, Qt::ConnectionType type,
                  void *result) STANDS_BEFORE(INVOKE_METHOD);
void postEvent(QObject *receiver, QEvent *event, int priority) STANDS_BEFORE(POST_EVENT);
void moveToThread(QObject *self, QThread *thread) STANDS_BEFORE(MOVE_TO_THREAD);
bool wait(QThread *self, QDeadlineTimer deadline) STANDS_BEFORE(WAIT);

bool invokeMethod(QObject *object, QtPrivate::QSlotObjectBase *slot, Qt::ConnectionType type,
                  void *result)
{
    beginEmission();
    slot->ref();
    const bool isInvoked =
        qtFunction<decltype(&invokeMethod)>(INVOKE_METHOD)(object, slot, type, result);
    endEmission();
    // Otherwise the caller goes on without knowing whether the call was made.
    if (type == Qt::BlockingQueuedConnection) {
        hearOthers();
    }
    destroyUnseen(slot);
    return isInvoked;
}

void postEvent(QObject *receiver, QEvent *event, int priority)
{
    beginEmission();
    qtFunction<decltype(&postEvent)>(POST_EVENT)(receiver, event, priority);
    endEmission();
}

void moveToThread(QObject *self, QThread *thread)
{
    tellOthers();
    qtFunction<decltype(&moveToThread)>(MOVE_TO_THREAD)(self, thread);
}

bool wait(QThread *self, QDeadlineTimer deadline)
{
    const bool hasEnded = qtFunction<decltype(&wait)>(WAIT)(self, deadline);
    hearOthers();
    return hasEnded;
}

#endif
