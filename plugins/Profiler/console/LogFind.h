// SPDX-License-Identifier: MIT
#pragma once

#include "console/TextFinder.h"

#include <QObject>
#include <QTimer>

#include <deque>

namespace profiler
{

class LogModel;

/// Finds a text in the rows of a log, in pieces, and goes on as the log grows. GUI thread only.
class LogFind : public QObject
{
    Q_OBJECT

public:
    explicit LogFind(LogModel& model, QObject* parent = nullptr);

    /// Empty ends finding.
    void setText(const QString& text);
    bool isDone() const { return !m_work.isActive(); }
    int count() const { return int(m_hits.size()); }
    /// From 1, of the row; 0 where it is none.
    int numberOf(int row) const;

    /// To the first hit at or after this row, or the last one before it; round the ends. found() follows,
    /// perhaps later, where there is one.
    void goOnFrom(int row, bool forward);

signals:
    void found(int row);
    void changed();

private:
    void restart();
    void work();
    void workOnce();
    void jump();
    void forgetGone();

    LogModel& m_model;
    TextFinder m_text;
    std::deque<std::uint64_t> m_hits; // lines
    std::uint64_t m_next = 0;         // line
    bool m_isWanted = false;
    bool m_isForward = true;
    std::uint64_t m_from = 0; // line
    QTimer m_work;
};

} // namespace profiler
