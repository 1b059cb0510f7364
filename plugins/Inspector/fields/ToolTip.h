// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SoField;
struct SpxFieldDescription;

namespace inspector
{

/// What a field is, as rich text: meaning, unit, range, default value and type.
QString toolTipOf(const SoField& field, const SpxFieldDescription* description);
/// The same for who hears it, in a line: type, unit, range and meaning.
QString spokenMeaningOf(const SoField& field, const SpxFieldDescription* description);
/// What stands above the field and those after it, and what it means, in the user's language.
QString headingOf(const SpxFieldDescription& description);
QString meaningOf(const SpxFieldDescription& description);
/// "m", "rad, shown in degrees"; empty where there is none.
QString unitOf(const SpxFieldDescription& description);

} // namespace inspector
