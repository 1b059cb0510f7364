// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QWidget;

namespace scopix
{

/// Knows whether what runs right now is done by the user: whether it runs inside the delivery of a key, a
/// button, the wheel, a loss of focus. Timers, queued calls and events of the application are not, also where
/// they run in an event loop inside of such a delivery, as under a dialog. Two of them are, since a widget
/// defers to them what the user does: the timers of the widget whose button is held (arrows of a spin box),
/// and the queued calls of the delegates of item views (Enter in a cell).
///
/// An event filter sees only beginnings, so this one delivers such an event itself, and so sees the end.
/// Filters that are installed later see these events twice (decisions.md: input-delivered-by-filter). GUI
/// thread only.
class UserInput : public QObject
{
    Q_OBJECT

public:
    /// `changed` is called whenever mayAct() may have changed.
    explicit UserInput(std::function<void()> changed, QObject* parent = nullptr);
    ~UserInput() override;

    /// From now on only input to this window counts, and to windows inside of it, to popups, and to whatever
    /// is opened by such input.
    void setWindow(QWidget* window);
    bool isActing() const;
    /// As isActing(), or an event loop runs inside of the delivery, at whose end it is so again.
    bool mayAct() const { return !m_deliveries.empty() && m_deliveries.back().who == Scope::User; }

    /// While it exists, what runs is done by the user, or by somebody else.
    class Scope
    {
    public:
        enum Who { User, Other };
        Scope(UserInput& input, Who who);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        UserInput& m_input;
    };

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Delivery {
        Scope::Who who;
        int level; // depth of event loops
    };

    bool isOurs(QObject* watched) const;
    bool isDeferredByWidget(QObject* watched, QEvent::Type type) const;
    bool isSeenAgain(QObject* watched, QEvent* event);
    void noteHeld(QObject* watched, QEvent* event);
    bool deliver(QObject* watched, QEvent* event, Scope::Who who);

    std::function<void()> m_changed;
    QPointer<QWidget> m_window;
    bool m_takesAll = true;
    std::vector<Delivery> m_deliveries; // the innermost last
    QPointer<QWidget> m_held;           // gets the button that is pressed
    const QEvent* m_passing = nullptr;  // from here, not yet back at the filter
    // A delivery that nobody accepted has gone up to all parents; the event that caused it is still to go
    // there.
    QPointer<QObject> m_upNext;
    QEvent::Type m_upType = QEvent::None;
};

} // namespace scopix
