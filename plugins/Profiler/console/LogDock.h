// SPDX-License-Identifier: MIT
#pragma once

#include "PanelDock.h"

#include <memory>

namespace profiler
{

class LogBadge;
class LogModel;

/// The dock "Log": everything that the process writes and reports while this is active, also while the dock
/// is hidden. It takes no stream and no handler for itself.
class LogDock : public PanelDock
{
    Q_OBJECT

public:
    LogDock();
    ~LogDock() override;

    void load() override;
    void unload() override;
    void activate() override;
    void deactivate() override;

protected:
    QWidget* makePanel() override;

private:
    void showFirstError();

    std::unique_ptr<LogModel> m_model;
    std::unique_ptr<LogBadge> m_badge;
};

} // namespace profiler
