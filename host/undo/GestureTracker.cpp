// SPDX-License-Identifier: MIT
#include "undo/GestureTracker.h"

#include "undo/TextInput.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QThread>
#include <QWidget>

#include <algorithm>

namespace scopix
{

namespace
{

const QEvent::Type EndType = static_cast<QEvent::Type>(QEvent::registerEventType());

// Posted when a gesture's release arrives, so it comes back when the release has been delivered.
class EndEvent : public QEvent
{
public:
    explicit EndEvent(GestureTracker::Gesture gesture)
        : QEvent(EndType)
        , id(gesture)
    {
    }
    const GestureTracker::Gesture id;
};

int loopLevel()
{
    return QThread::currentThread()->loopLevel();
}

bool isModifierAlone(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return true;
    default:
        return false;
    }
}

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

// Changes the number in a spin box as a whole, as its arrows do.
bool isStep(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

bool isModalWindow(const QObject* object)
{
    const auto* widget = qobject_cast<const QWidget*>(object);
    return widget && widget->isWindow() && widget->isModal();
}

} // namespace

GestureTracker::GestureTracker(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* from) { focusHasMoved(from); });
}

GestureTracker::~GestureTracker() = default;

GestureTracker::Gesture GestureTracker::current() const
{
    if (m_leaving)
        return m_leaving;
    if (dialogOpen())
        return m_dialogs.front().opener;
    const ActiveGesture* open = visibleTop();
    return open ? open->id : 0;
}

bool GestureTracker::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Timer:
    case QEvent::MetaCall:
    case QEvent::SockAct:
    case QEvent::DeferredDelete:
        eventLoopIterated();
        break;
    case QEvent::Shortcut:
        instantGesture(Kind::Shortcut);
        break;
    default:
        if (ActiveGesture* open = top(); open && open->waitsForLoop && loopLevel() <= open->level) {
            open->waitsForLoop = false;
            postEnd(open->id);
        }
        if (watched->isWidgetType())
            widgetEvent(static_cast<QWidget*>(watched), event);
    }
    return false;
}

bool GestureTracker::event(QEvent* event)
{
    if (event->type() != EndType)
        return QObject::event(event);
    tryToEnd(static_cast<EndEvent*>(event)->id);
    return true;
}

void GestureTracker::widgetEvent(QWidget* widget, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        mousePressed(widget, *static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        mouseReleased(*static_cast<QMouseEvent*>(event));
        break;
    case QEvent::KeyPress:
        keyPressed(widget, *static_cast<QKeyEvent*>(event));
        break;
    case QEvent::KeyRelease:
        keyReleased(*static_cast<QKeyEvent*>(event));
        break;
    case QEvent::InputMethod:
        typed(widget, false);
        break;
    case QEvent::Wheel:
        wheelTurned(widget);
        break;
    case QEvent::Drop:
        if (!visibleTop())
            instantGesture(Kind::Mouse);
        break;
    case QEvent::FocusOut:
        focusLeaves(widget);
        break;
    case QEvent::Show:
        if (!event->spontaneous() && isModalWindow(widget))
            dialogShown(widget);
        break;
    case QEvent::Hide:
        if (!event->spontaneous())
            dialogHidden(widget);
        break;
    default:
        break;
    }
}

void GestureTracker::mousePressed(QWidget* widget, const QMouseEvent& event)
{
    if (dialogOpen())
        return;
    const ActiveGesture* open = visibleTop();
    const bool held = open && open->kind == Kind::Mouse && !open->released && open->level == loopLevel();
    const bool anotherButton = event.buttons() != event.button();
    const bool passedUp = held && open->receiver && widget->isAncestorOf(open->receiver);
    if (held && (anotherButton || passedUp))
        return;
    begin(Kind::Mouse, widget);
}

void GestureTracker::mouseReleased(const QMouseEvent& event)
{
    ActiveGesture* open = top();
    if (open && open->kind == Kind::Mouse && event.buttons() == Qt::NoButton)
        release(*open);
}

void GestureTracker::keyPressed(QWidget* widget, const QKeyEvent& event)
{
    if (dialogOpen() || isModifierAlone(event.key()))
        return;
    const bool passedUp = m_keyEvent == &event && m_keyReceiver && widget->isAncestorOf(m_keyReceiver);
    if (passedUp)
        return;
    m_keyEvent = &event;
    m_keyReceiver = widget;
    const ActiveGesture* held = visibleTop();
    if (event.key() == Qt::Key_Escape && held && held->kind == Kind::Mouse && !held->released)
        return; // gives a drag back
    const bool isInput = TextInput::isTextInput(widget);
    const bool steps = isInput && isStep(event.key()) && TextInput::isSingleLine(widget);
    if (isInput && !steps) {
        typed(widget, isEnter(event.key()));
        return;
    }
    const ActiveGesture* open = visibleTop();
    const bool repeats = event.isAutoRepeat() && open && open->kind == Kind::Key && open->receiver == widget;
    if (!repeats)
        begin(Kind::Key, widget);
    // What it steps to may be applied only when the focus leaves; what is typed next is another run.
    if (steps)
        m_run = {widget, m_last, true};
}

void GestureTracker::keyReleased(const QKeyEvent& event)
{
    m_keyEvent = nullptr;
    ActiveGesture* open = top();
    if (open && open->kind == Kind::Key && !event.isAutoRepeat())
        release(*open);
}

void GestureTracker::typed(QWidget* input, bool enter)
{
    if (dialogOpen())
        return;
    const ActiveGesture* open = visibleTop();
    const bool continues = open && open->id == m_run.id && m_run.input == input && !m_run.entered;
    if (!continues) {
        begin(Kind::Typing, input);
        m_run = {input, m_last, false};
    }
    m_run.entered = enter;
}

void GestureTracker::wheelTurned(QWidget* widget)
{
    if (dialogOpen())
        return;
    const ActiveGesture* open = visibleTop();
    const bool continues = open && open->kind == Kind::Wheel && open->receiver &&
                           (open->receiver == widget || widget->isAncestorOf(open->receiver));
    if (!continues)
        begin(Kind::Wheel, widget);
}

void GestureTracker::instantGesture(Kind kind)
{
    if (dialogOpen())
        return;
    begin(kind, nullptr);
    release(m_open.back());
}

void GestureTracker::focusLeaves(QWidget* widget)
{
    if (!TextInput::isTextInput(widget))
        return;
    const bool insideDialog = dialogOpen() && isModalWindow(widget->window());
    if (insideDialog)
        return;
    // What was typed belongs to its run, whatever took the focus away. Text that came without typing, such as
    // pasted with the mouse, is a gesture of its own.
    m_leaving = m_run.input == widget ? m_run.id : ++m_last;
    m_leavingInput = widget;
    postEnd(m_leaving);
}

void GestureTracker::focusHasMoved(QWidget* from)
{
    if (!m_leaving || from != m_leavingInput)
        return;
    close(m_leaving);
    if (m_run.id == m_leaving)
        m_run = {};
    m_leaving = 0;
}

void GestureTracker::dialogShown(QWidget* dialog)
{
    if (!current())
        begin(Kind::Dialog, dialog);
    m_dialogs.push_back({dialog, current()});
}

void GestureTracker::dialogHidden(const QWidget* dialog)
{
    const auto is = [&](const ActiveDialog& open) { return !open.dialog || open.dialog == dialog; };
    const auto hidden = std::find_if(m_dialogs.begin(), m_dialogs.end(), is);
    if (hidden == m_dialogs.end())
        return;
    const Gesture opener = m_dialogs.front().opener;
    m_dialogs.erase(std::remove_if(m_dialogs.begin(), m_dialogs.end(), is), m_dialogs.end());
    ActiveGesture* open = top();
    if (!m_dialogs.empty() || !open || open->id != opener)
        return;
    if (open->kind == Kind::Dialog)
        open->released = true;
    if (open->released)
        postEnd(opener);
}

// Only an event loop sends these events: whatever was released on this level has been delivered.
void GestureTracker::eventLoopIterated()
{
    m_leaving = 0;
    ActiveGesture* open = top();
    if (open && open->released && loopLevel() <= open->level)
        tryToEnd(open->id);
}

void GestureTracker::begin(Kind kind, QWidget* receiver)
{
    const int level = loopLevel();
    m_leaving = 0;
    while (!m_open.empty() && m_open.back().level >= level)
        m_open.pop_back();
    m_open.push_back({++m_last, kind, level, receiver});
}

void GestureTracker::release(ActiveGesture& gesture)
{
    gesture.released = true;
    postEnd(gesture.id);
}

void GestureTracker::tryToEnd(Gesture id)
{
    if (m_leaving == id)
        m_leaving = 0;
    if (dialogOpen())
        return; // the dialog's end asks again
    const auto is = [id](const ActiveGesture& open) { return open.id == id; };
    const auto open = std::find_if(m_open.begin(), m_open.end(), is);
    if (open == m_open.end() || !open->released)
        return;
    if (loopLevel() > open->level)
        open->waitsForLoop = true;
    else
        close(id);
}

void GestureTracker::postEnd(Gesture id)
{
    QCoreApplication::postEvent(this, new EndEvent(id));
}

void GestureTracker::close(Gesture id)
{
    const auto is = [id](const ActiveGesture& open) { return open.id == id; };
    const auto closed = std::find_if(m_open.begin(), m_open.end(), is);
    if (closed != m_open.end())
        m_open.erase(closed); // those behind it belong to event loops inside of its own
}

// Gestures of event loops that have ended since do not count.
const GestureTracker::ActiveGesture* GestureTracker::visibleTop() const
{
    const int level = loopLevel();
    const auto counts = [level](const ActiveGesture& open) { return open.level <= level; };
    const auto found = std::find_if(m_open.rbegin(), m_open.rend(), counts);
    return found == m_open.rend() ? nullptr : &*found;
}

GestureTracker::ActiveGesture* GestureTracker::top()
{
    return const_cast<ActiveGesture*>(visibleTop());
}

bool GestureTracker::dialogOpen() const
{
    const auto visible = [](const ActiveDialog& open) { return open.dialog && open.dialog->isVisible(); };
    return std::any_of(m_dialogs.begin(), m_dialogs.end(), visible);
}

} // namespace scopix
