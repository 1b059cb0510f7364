// SPDX-License-Identifier: MIT
#include "table/TableEditors.h"

#include "table/ListAccess.h"
#include "table/TableFieldEditor.h"

std::vector<std::unique_ptr<SpxExtension>> inspector::makeTableEditors()
{
    std::vector<std::unique_ptr<SpxExtension>> editors;
    for (const SoType type : ListAccess::types())
        editors.push_back(std::make_unique<TableFieldEditor>(type));
    return editors;
}
