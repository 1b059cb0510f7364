// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

class QAction;
class SpxExtension;

/// What a host may offer beyond SpxShell: entries in its menus, and bringing a tool's dock to the front. GUI
/// thread only.
class SPX_API SpxShellMenus
{
public:
    enum class Menu {
        Edit, // acts on what is selected
        View, // how things are shown
    };

    /// Null where the host does not offer this.
    static SpxShellMenus* getInstance();

    SpxShellMenus(const SpxShellMenus&) = delete;
    SpxShellMenus& operator=(const SpxShellMenus&) = delete;

    /// At the end of the menu. The action stays the caller's; it leaves the menu when it is removed or
    /// deleted.
    virtual void addMenuAction(Menu menu, QAction* action) = 0;
    virtual void removeMenuAction(QAction* action) = 0;

    /// Brings the docks of the extension of this name, as in "Field Editor", in front of those that share
    /// their place. False where no active extension is named so, or none of its docks is shown.
    virtual bool raiseDocksOf(const char* extension) = 0;

protected:
    SpxShellMenus() = default;
    virtual ~SpxShellMenus();
};
