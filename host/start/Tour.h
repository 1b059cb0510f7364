// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QPointer>

#include <functional>
#include <vector>

class QLabel;
class QPushButton;

namespace scopix
{

/// Leads through the window in a few steps, each in a bubble beside what it is about. A step ends when the
/// user has done it, or goes on. Everything else stays as usable as ever. GUI thread only.
class Tour : public QFrame
{
    Q_OBJECT

public:
    struct Step {
        QString title;
        QString text;
        std::function<QWidget*()> place; // what it is about; null, or hidden: the window
    };

    /// A child of the window, which may be closed during it; hidden at first.
    Tour(QWidget& window, std::vector<Step> steps);

    void begin();
    /// The user has done what this step, counted from 0, asks for; nothing where another one is shown.
    void done(int step);
    /// -1: none.
    int current() const { return isVisible() ? m_current : -1; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(int step);
    void place();
    void end();

    QWidget& m_window;
    std::vector<Step> m_steps;
    int m_current = 0;
    QLabel* m_number;
    QLabel* m_title;
    QLabel* m_text;
    QPushButton* m_back;
    QPushButton* m_next;
};

} // namespace scopix
