// SPDX-License-Identifier: MIT
// The text forms of enumeration and bit-mask values, shared by the single- and multi-value fields.
#pragma once

#include <xsg/fields/SoEnumTable.h>
#include <xsg/values/ValueText.h>

namespace xsg
{

/// Alone, a name is written as it stands, blanks inside included; in a list, one that is no word takes
/// quotes.
void writeEnum(std::string& out, const SoEnumTable& table, int value);
bool readEnum(std::string_view text, const SoEnumTable& table, int& value);
void writeListedEnum(std::string& out, const SoEnumTable& table, int value);
bool readListedEnum(TextReader& in, const SoEnumTable& table, int& value);

/// A bit mask has the same text alone and in a list.
void writeBitMask(std::string& out, const SoEnumTable& table, int value);
bool readBitMask(std::string_view text, const SoEnumTable& table, int& value);
bool readListedBitMask(TextReader& in, const SoEnumTable& table, int& value);

} // namespace xsg
