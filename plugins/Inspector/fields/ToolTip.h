// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SoField;

namespace inspector
{

struct Description;

/// What a field is, as rich text: meaning, unit, range, default value and type.
QString toolTipOf(const SoField& field, const Description* description);
/// The same for who hears it, in a line: type, unit, range and meaning.
QString spokenMeaningOf(const SoField& field, const Description* description);
/// "m", "rad, shown in degrees"; empty where there is none.
QString unitOf(const Description& description);

} // namespace inspector
