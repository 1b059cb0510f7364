// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExtension.h>

#include <QPointer>

class QDockWidget;

namespace profiler
{

class FramesPanel;

/// The dock "Frames" below the 3D view. It is hidden at first; while it is, frames are not measured.
class FramesDock : public SpxExtension
{
    Q_OBJECT

public:
    FramesDock();
    ~FramesDock() override;

    void load() override;
    void unload() override;
    void activate() override;
    void deactivate() override;
    void show() override;
    void hide() override;

    FramesPanel* getPanel() const;

private:
    QPointer<QDockWidget> m_dock; // the extension's own, also while the shell is its parent
    QPointer<FramesPanel> m_panel;
};

} // namespace profiler
