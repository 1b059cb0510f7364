// SPDX-License-Identifier: MIT
#pragma once

#include "PanelDock.h"

namespace profiler
{

/// The dock "Frames". While it is hidden, frames are not measured, unless a recording is written.
class FramesDock : public PanelDock
{
    Q_OBJECT

public:
    FramesDock();

protected:
    QWidget* makePanel() override;
};

} // namespace profiler
