// SPDX-License-Identifier: MIT
#include "SpxContextMenus.h"

#include "SpxShell.h"

SpxContextMenuProvider::SpxContextMenuProvider() = default;

SpxContextMenuProvider::~SpxContextMenuProvider()
{
    if (SpxContextMenus* menus = SpxContextMenus::getInstance())
        menus->removeProvider(this);
}

void SpxContextMenuProvider::addNodeEntries(QMenu& /*menu*/, const QList<SoFieldContainer*>& /*nodes*/) {}

void SpxContextMenuProvider::addFieldEntries(QMenu& /*menu*/, SoField& /*field*/) {}

SpxContextMenus::~SpxContextMenus() = default;

SpxContextMenus* SpxContextMenus::getInstance()
{
    return dynamic_cast<SpxContextMenus*>(SpxShell::getInstance());
}
