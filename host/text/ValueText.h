// SPDX-License-Identifier: MIT
// A field's value as a short line for the user interface.
#pragma once

#include <QString>

class SoField;

namespace scopix
{

/// At most `limit` characters, then "…". What does not fit is not even turned into text: a field of a million
/// values costs the few that are shown, a picture its sizes. Line breaks show as "⏎".
QString valueText(const SoField& field, int limit = 160);
/// All of it, as an editor takes it: strings and names bare, other values as in a scene file.
QString wholeValueText(const SoField& field);

} // namespace scopix
