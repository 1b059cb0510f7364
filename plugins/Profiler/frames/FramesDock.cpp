// SPDX-License-Identifier: MIT
#include "frames/FramesDock.h"

#include "frames/FramesPanel.h"

namespace profiler
{

FramesDock::FramesDock()
    : PanelDock(QT_TRANSLATE_NOOP("Extension", "Frames"),
                QT_TRANSLATE_NOOP("Extension", "Shows what each frame cost, and why."))
{
}

QWidget* FramesDock::makePanel()
{
    return new FramesPanel(SoFrameLog::getInstance());
}

} // namespace profiler
