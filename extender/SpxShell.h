// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <qnamespace.h>

class QDockWidget;
class QToolBar;
class SpxExtension;

/// The host's main window as extensions see it. The host derives from it and makes one instance.
/// Dock widgets and tool bars are owned by the extension: what is removed has no parent afterwards.
/// GUI thread only.
class SPX_API SpxShell
{
public:
    /// Null while no host has made one.
    static SpxShell* getInstance();

    SpxShell(const SpxShell&) = delete;
    SpxShell& operator=(const SpxShell&) = delete;

    virtual void addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area) = 0;
    virtual void removeDockWidget(QDockWidget* dock) = 0;
    /// Every extension attaches itself at the end of its activate() and detaches itself at the end of its
    /// deactivate().
    virtual void attachExtension(SpxExtension* extension, bool attach) = 0;
    virtual void detachExtension(SpxExtension* extension) = 0;
    virtual void addToolBar(QToolBar* toolBar, Qt::ToolBarArea area) = 0;
    virtual void removeToolBar(QToolBar* toolBar) = 0;

protected:
    SpxShell();
    virtual ~SpxShell();
};
