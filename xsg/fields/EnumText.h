// The text forms of enumeration and bit-mask values, shared by the single- and multi-value fields.
#pragma once

#include <xsg/base/XsgText.h>
#include <xsg/fields/SoEnumTable.h>

namespace xsg
{

void writeEnum(std::string& out, const SoEnumTable& table, int value);
bool readEnum(std::string_view text, const SoEnumTable& table, int& value);
void writeBitMask(std::string& out, const SoEnumTable& table, int value);
bool readBitMask(std::string_view text, const SoEnumTable& table, int& value);

} // namespace xsg
