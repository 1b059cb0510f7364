// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QToolButton>

namespace profiler
{

class LogModel;

/// In the status bar: how many errors have come since the user last looked, and the first of them. A click
/// is for the first one. Nothing is shown where there are none.
class LogBadge : public QToolButton
{
    Q_OBJECT

public:
    explicit LogBadge(LogModel& model);

    /// In the status bar, where the host has one for extensions.
    void attach();
    void detach();

private:
    void refresh();

    LogModel& m_model;
    bool m_isAttached = false;
};

} // namespace profiler
