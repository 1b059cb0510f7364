// SPDX-License-Identifier: MIT
#include "table/TableEditors.h"

#include "table/ListAccess.h"
#include "table/TableFieldEditor.h"
#include "table/WideTable.h"

std::vector<std::unique_ptr<SpxExtension>> inspector::makeTableEditors()
{
    std::vector<std::unique_ptr<SpxExtension>> editors;
    auto dock = std::make_unique<WideTable>();
    for (const SoType type : ListAccess::types())
        editors.push_back(std::make_unique<TableFieldEditor>(type, dock.get()));
    editors.push_back(std::move(dock));
    return editors;
}
