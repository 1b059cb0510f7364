// SPDX-License-Identifier: MIT
#include "SpxTreeColumns.h"

#include "SpxShell.h"

SpxTreeColumnProvider::SpxTreeColumnProvider() = default;

SpxTreeColumnProvider::~SpxTreeColumnProvider()
{
    if (SpxTreeColumns* columns = SpxTreeColumns::getInstance())
        columns->removeColumns(this);
}

SpxTreeColumns::~SpxTreeColumns() = default;

SpxTreeColumns* SpxTreeColumns::getInstance()
{
    return dynamic_cast<SpxTreeColumns*>(SpxShell::getInstance());
}
