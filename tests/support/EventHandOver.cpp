// SPDX-License-Identifier: MIT
// Part of GUI programs under ThreadSanitizer: reports to it that whoever receives an event or a queued call
// comes after whoever posted it. Qt orders them by a QMutex, which is invisible to it; without this, what one
// thread hands to another would look like a race.
#include <QCoreApplication>
#include <QEvent>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace
{

class Receiver : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject* receiver, QEvent*) override
    {
        __tsan_acquire(receiver);
        return false;
    }
};

void watch()
{
    qApp->installEventFilter(new Receiver(qApp));
}
Q_COREAPP_STARTUP_FUNCTION(watch)

// The function of this symbol in Qt itself.
template <class Function>
Function* qtsOwn(const char* symbol)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, symbol));
}

} // namespace

// In place of Qt's, for all calls from outside of Qt.
void QCoreApplication::postEvent(QObject* receiver, QEvent* event, int priority)
{
    static const auto own = qtsOwn<decltype(postEvent)>("_ZN16QCoreApplication9postEventEP7QObjectP6QEventi");
    __tsan_release(receiver);
    own(receiver, event, priority);
}

bool QMetaObject::invokeMethodImpl(QObject* receiver, QtPrivate::QSlotObjectBase* call,
                                   Qt::ConnectionType type, void* result)
{
    static const auto own = qtsOwn<bool(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
    __tsan_release(receiver);
    return own(receiver, call, type, result);
}
