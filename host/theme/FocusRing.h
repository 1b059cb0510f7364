// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

namespace scopix
{

/// Shows which widget of a window and its dialogs has the focus, where the keyboard brought it there; widgets
/// draw little of that by themselves, and some nothing. Belongs to the window; GUI thread only.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    explicit FocusRing(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QWidget* focus);
    void place();

    QWidget& m_window;
    QPointer<QWidget> m_ring; // a child of the widget that has the focus
};

} // namespace scopix
