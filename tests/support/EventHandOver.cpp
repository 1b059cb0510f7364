// Part of the GUI tests under ThreadSanitizer: tells it that whoever receives an event comes after whoever
// posted it. Qt orders them by a QMutex, which is invisible to it; without this, what one thread puts into an
// event and another takes out would look like a race.
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
    bool eventFilter(QObject*, QEvent* event) override
    {
        __tsan_acquire(event);
        return false;
    }
};

void watch()
{
    qApp->installEventFilter(new Receiver(qApp));
}
Q_COREAPP_STARTUP_FUNCTION(watch)

} // namespace

// In place of Qt's own, for all calls from outside of Qt.
void QCoreApplication::postEvent(QObject* receiver, QEvent* event, int priority)
{
    using PostEvent = void (*)(QObject*, QEvent*, int);
    static const auto next =
        reinterpret_cast<PostEvent>(dlsym(RTLD_NEXT, "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi"));
    __tsan_release(event);
    next(receiver, event, priority);
}
