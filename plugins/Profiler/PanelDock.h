// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExtension.h>

#include <QPointer>
#include <QWidget>

class QDockWidget;

namespace profiler
{

/// A dock with one panel below the 3D view, hidden at first. What is looked at there is no edit: it may go on
/// while former values show.
class PanelDock : public SpxExtension
{
    Q_OBJECT

public:
    ~PanelDock() override;

    void load() override;
    void unload() override;
    void activate() override;
    void deactivate() override;
    void show() override;
    void hide() override;

protected:
    /// The name is the dock's title too.
    PanelDock(const char* name, const char* description);
    /// Made once, at load(); the dock owns it.
    virtual QWidget* makePanel() = 0;
    QWidget* getPanel() const { return m_panel; }

private:
    QPointer<QDockWidget> m_dock; // the extension's own, also while the shell is its parent
    QPointer<QWidget> m_panel;
};

} // namespace profiler
