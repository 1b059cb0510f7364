// SPDX-License-Identifier: MIT
#include "undo/UserInput.h"

#include <QAbstractButton>
#include <QAbstractItemDelegate>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QThread>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace scopix
{

namespace
{

int loopLevel()
{
    return QThread::currentThread()->loopLevel();
}

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::Drop:
    case QEvent::Shortcut:
    case QEvent::FocusOut: // applies what was typed
        return true;
    default:
        return false;
    }
}

bool comesFromLoop(QEvent::Type type)
{
    return type == QEvent::Timer || type == QEvent::MetaCall || type == QEvent::SockAct ||
           type >= QEvent::User;
}

bool goesUp(const QWidget& widget, QEvent::Type type)
{
    // Qt passes these on to the parents where nobody accepts them.
    if (widget.isWindow() || type == QEvent::FocusOut || type == QEvent::InputMethod || type == QEvent::Drop)
        return false;
    return type == QEvent::KeyPress || type == QEvent::KeyRelease ||
           !widget.testAttribute(Qt::WA_NoMousePropagation);
}

QWidget* widgetOf(QObject* watched)
{
    if (watched->isWidgetType())
        return static_cast<QWidget*>(watched);
    if (!watched->isWindowType())
        return qobject_cast<QWidget*>(watched->parent()); // of an action or a shortcut
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->windowHandle() == watched)
            return top;
    }
    return nullptr;
}

} // namespace

UserInput::Scope::Scope(UserInput& input, Who who)
    : m_input(input)
{
    m_input.m_deliveries.push_back({who, loopLevel()});
    m_input.m_changed();
}

UserInput::Scope::~Scope()
{
    m_input.m_deliveries.pop_back();
    m_input.m_changed();
}

UserInput::UserInput(std::function<void()> changed, QObject* parent)
    : QObject(parent)
    , m_changed(std::move(changed))
{
    qApp->installEventFilter(this);
}

UserInput::~UserInput() = default;

void UserInput::setWindow(QWidget* window)
{
    m_window = window;
    m_takesAll = !window;
}

bool UserInput::isActing() const
{
    return mayAct() && m_deliveries.back().level == loopLevel();
}

bool UserInput::eventFilter(QObject* watched, QEvent* event)
{
    if (event == m_passing) { // our own delivery of it
        m_passing = nullptr;
        return false;
    }
    if (isSeenAgain(watched, event))
        return true;
    noteHeld(watched, event);
    const QEvent::Type type = event->type();
    if (isInput(type) || isDeferredByWidget(watched, type))
        return (type == QEvent::FocusOut || !isActing()) && isOurs(watched) &&
               deliver(watched, event, Scope::User);
    return comesFromLoop(type) && !m_deliveries.empty() && deliver(watched, event, Scope::Other);
}

bool UserInput::isSeenAgain(QObject* watched, QEvent* event)
{
    const QPointer<QObject> expected = std::exchange(m_upNext, nullptr);
    if (!expected || expected != watched || event->type() != m_upType)
        return false;
    auto* widget = static_cast<QWidget*>(watched);
    if (goesUp(*widget, m_upType))
        m_upNext = widget->parentWidget();
    event->ignore();
    return true;
}

void UserInput::noteHeld(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return;
    if (event->type() == QEvent::MouseButtonPress)
        m_held = static_cast<QWidget*>(
            watched); // the last that gets it, on its way up, is the one that accepts it
    else if (event->type() == QEvent::MouseButtonRelease)
        m_held = nullptr;
}

bool UserInput::isDeferredByWidget(QObject* watched, QEvent::Type type) const
{
    const bool repeats = qobject_cast<QAbstractSpinBox*>(watched) ||
                         qobject_cast<QAbstractSlider*>(watched) || qobject_cast<QAbstractButton*>(watched);
    return (type == QEvent::Timer && watched == m_held && repeats) ||
           (type == QEvent::MetaCall && qobject_cast<QAbstractItemDelegate*>(watched));
}

bool UserInput::isOurs(QObject* watched) const
{
    if (m_takesAll || !m_deliveries.empty())
        return true;
    if (auto* delegate = qobject_cast<QAbstractItemDelegate*>(watched))
        watched = delegate->parent();
    QWidget* widget = watched ? widgetOf(watched) : nullptr;
    for (; widget; widget = widget->parentWidget()) {
        if (widget == m_window || widget->windowType() == Qt::Popup)
            return true;
    }
    return false;
}

bool UserInput::deliver(QObject* watched, QEvent* event, Scope::Who who)
{
    const QPointer<QObject> receiver = watched;
    const bool isPassedOn =
        isInput(event->type()) && (event->type() != QEvent::Wheel || event->spontaneous());
    {
        const Scope scope(*this, who);
        // Filters that come before this one may cause other events first.
        const QScopedValueRollback<const QEvent*> passing(m_passing, event);
        qApp->notify(watched, event);
    }
    auto* widget = receiver && receiver->isWidgetType() ? static_cast<QWidget*>(receiver.data()) : nullptr;
    if (widget && isPassedOn && !event->isAccepted() && goesUp(*widget, event->type())) {
        m_upNext = widget->parentWidget();
        m_upType = event->type();
    }
    return true;
}

} // namespace scopix
