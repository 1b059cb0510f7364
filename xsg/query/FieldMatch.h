// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/query/QueryTerm.h>

class SoField;

namespace xsg
{

/// Whether a value of the field compares so. Of a list, one value is enough; for "!=", none may be equal.
bool comparesTo(const SoField& field, const QueryTerm& term);
/// Whether the text of a value contains `lower`. A picture has no text.
bool valueContains(const SoField& field, const std::string& lower);
/// Strings, names and paths of files, and lists of them.
bool holdsText(const SoField& field);

} // namespace xsg
