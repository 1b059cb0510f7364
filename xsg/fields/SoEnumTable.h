// The names an enumeration or bit-mask field understands, each with its value. Shared by all fields of a class.
#pragma once

#include <xsg/base/SbName.h>

#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

struct XSG_API SoEnumTable {
    SoEnumTable() = default;
    SoEnumTable(std::initializer_list<std::pair<const char*, int>> entries);

    // Index of the first entry with this name or value, or -1.
    int indexOf(SbName name) const;
    int indexOf(int value) const;

    std::vector<int> values;
    std::vector<SbName> names;
};

using SoEnumTablePtr = std::shared_ptr<const SoEnumTable>;
