// SPDX-License-Identifier: MIT
#include <xsg/fields/SoEnumTable.h>

#include <algorithm>

SoEnumTable::SoEnumTable(std::initializer_list<std::pair<const char*, int>> entries)
{
    for (const auto& [name, value] : entries) {
        names.emplace_back(name);
        values.push_back(value);
    }
}

int SoEnumTable::indexOf(SbName name) const
{
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

int SoEnumTable::indexOf(int value) const
{
    const auto found = std::find(values.begin(), values.end(), value);
    return found == values.end() ? -1 : static_cast<int>(found - values.begin());
}

bool SoEnumTable::findValue(SbName name, int& value) const
{
    const int index = indexOf(name);
    if (index < 0)
        return false;
    value = values[static_cast<std::size_t>(index)];
    return true;
}

SoEnumTablePtr SoEnumTable::empty()
{
    static const auto& empty = *new SoEnumTablePtr(std::make_shared<SoEnumTable>());
    return empty;
}

SoEnumTablePtr SoEnumTable::copyOf(int count, const int* values, const SbName* names)
{
    auto table = std::make_shared<SoEnumTable>();
    if (count > 0) {
        table->values.assign(values, values + count);
        table->names.assign(names, names + count);
    }
    return table;
}
