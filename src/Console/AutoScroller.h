// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QScrollBar;

/// Keeps a scroll bar at its end while what it scrolls grows, until the user scrolls away from the end;
/// coming back to the end resumes. Lives with its scroll bar.
class AutoScroller : public QObject
{
    Q_OBJECT

public:
    explicit AutoScroller(QScrollBar* bar);
    bool isFollowing() const { return m_following; }

private:
    bool isAtEnd() const;
    void rangeChanged();

    QScrollBar* m_bar;
    bool m_following = true;
};
