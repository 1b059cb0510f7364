// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace scopix
{

/// Determines which inputs of the user belong together. It watches every event of the program and gives each
/// gesture a number, from its beginning to its end, without any time limits:
///
///   mouse     from the press until the release of the last button has been delivered, and the Escape key
///             that gives a drag back;
///   typing    a run of keys in one text input, with what the loss of focus that ends it applies; after
///             Enter, the next key begins another run; an arrow key of a spin box is a key;
///   key       elsewhere, from a key's press (held, with its repeats) until its release has been delivered;
///   wheel     a burst over one widget, ended by a key, a button or the wheel over another widget;
///   dialog    what is done in a modal dialog belongs to the gesture that opened it.
///
/// GUI thread only.
class GestureTracker : public QObject
{
    Q_OBJECT

public:
    /// 0: no gesture.
    using Gesture = quint64;

    /// Watches the running QApplication.
    explicit GestureTracker(QObject* parent = nullptr);
    ~GestureTracker() override;

    /// The gesture to which what happens now belongs.
    Gesture current() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;

private:
    enum class Kind { Mouse, Typing, Key, Wheel, Shortcut, Dialog };

    struct ActiveGesture {
        Gesture id;
        Kind kind;
        int level; // depth of event loops in which its input arrived
        QPointer<QWidget> receiver;
        bool released = false;     // ends when the event that released it has been delivered
        bool waitsForLoop = false; // released, but its handler still runs an event loop of its own
    };

    struct TypingRun {
        QPointer<QWidget> input;
        Gesture id = 0;
        bool entered = false;
    };

    struct ActiveDialog {
        QPointer<QWidget> dialog;
        Gesture opener;
    };

    void widgetEvent(QWidget* widget, QEvent* event);
    void mousePressed(QWidget* widget, const QMouseEvent& event);
    void mouseReleased(const QMouseEvent& event);
    void keyPressed(QWidget* widget, const QKeyEvent& event);
    void keyReleased(const QKeyEvent& event);
    void typed(QWidget* input, bool enter);
    void wheelTurned(QWidget* widget);
    void instantGesture(Kind kind);
    void focusLeaves(QWidget* widget);
    void focusHasMoved(QWidget* from);
    void dialogShown(QWidget* dialog);
    void dialogHidden(const QWidget* dialog);

    void eventLoopIterated();
    void begin(Kind kind, QWidget* receiver);
    void release(ActiveGesture& gesture);
    void tryToEnd(Gesture id);
    void postEnd(Gesture id);
    void close(Gesture id);
    ActiveGesture* top();
    const ActiveGesture* visibleTop() const;
    bool dialogOpen() const;

    std::vector<ActiveGesture> m_open; // the innermost event loop's last
    std::vector<ActiveDialog> m_dialogs;
    TypingRun m_run;
    Gesture m_leaving = 0; // whose typing is being applied by a loss of focus
    QPointer<QWidget> m_leavingInput;
    QPointer<QWidget> m_keyReceiver; // of the key press being passed up to its parents
    const void* m_keyEvent = nullptr;
    Gesture m_last = 0;
};

} // namespace scopix
