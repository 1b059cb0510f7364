// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QList>

class QMenu;
class SoField;
class SoFieldContainer;

/// Adds entries to the context menus of nodes and fields, wherever these open: derive an extension from it,
/// or a member of one, and register it. Entries are made when a menu opens and belong to that menu; they
/// should guard what they act on, which may be destroyed while the menu is open. GUI thread only.
class SPX_API SpxContextMenuProvider
{
public:
    SpxContextMenuProvider();
    SpxContextMenuProvider(const SpxContextMenuProvider&) = delete;
    SpxContextMenuProvider& operator=(const SpxContextMenuProvider&) = delete;
    /// Removes itself where it is registered.
    virtual ~SpxContextMenuProvider();

    /// Never empty, none null. Adds nothing as it is here.
    virtual void addNodeEntries(QMenu& menu, const QList<SoFieldContainer*>& nodes);
    /// Adds nothing as it is here.
    virtual void addFieldEntries(QMenu& menu, SoField& field);
};

/// What a shell may offer beyond SpxShell: entries of extensions in the context menus of nodes and fields.
/// The host's tree and field list show them, and so does any tool that asks for them. GUI thread only.
class SPX_API SpxContextMenus
{
public:
    /// Null where the host does not offer this.
    static SpxContextMenus* getInstance();

    SpxContextMenus(const SpxContextMenus&) = delete;
    SpxContextMenus& operator=(const SpxContextMenus&) = delete;

    /// Not owned; once only, however often it is added.
    virtual void addProvider(SpxContextMenuProvider* provider) = 0;
    virtual void removeProvider(SpxContextMenuProvider* provider) = 0;

    /// For who opens a context menu: a separator and the entries of all providers but `except`, at the end of
    /// the menu; nothing where there are none.
    virtual void fillNodeMenu(QMenu& menu, const QList<SoFieldContainer*>& nodes,
                              const SpxContextMenuProvider* except = nullptr) = 0;
    virtual void fillFieldMenu(QMenu& menu, SoField& field,
                               const SpxContextMenuProvider* except = nullptr) = 0;

protected:
    SpxContextMenus() = default;
    virtual ~SpxContextMenus();
};
