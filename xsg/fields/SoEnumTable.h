// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbName.h>

#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

/// The names an enumeration or bit-mask field understands, each with its value. Shared by all fields of a
/// class.
struct XSG_API SoEnumTable {
    SoEnumTable() = default;
    SoEnumTable(std::initializer_list<std::pair<const char*, int>> entries);

    /// The table of a field that has no names yet.
    static std::shared_ptr<const SoEnumTable> empty();
    static std::shared_ptr<const SoEnumTable> copyOf(int count, const int* values, const SbName* names);

    /// Index of the first entry with this name or value, or -1.
    int indexOf(SbName name) const;
    int indexOf(int value) const;
    /// The value behind a name; false, without a change, for an unknown one.
    bool findValue(SbName name, int& value) const;

    std::vector<int> values;
    std::vector<SbName> names;
};

using SoEnumTablePtr = std::shared_ptr<const SoEnumTable>;
