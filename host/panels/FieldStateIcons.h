// SPDX-License-Identifier: MIT
// What a field's row shows besides text.
#pragma once

#include <QVariant>

class SoField;

namespace scopix
{

/// An icon: a ring for the default value, a filled dot for a changed one, a struck ring for an ignored field,
/// an arrow for one that follows another.
QVariant fieldMark(const SoField& field);
/// A patch of the colour, for fields that hold one; nothing for others.
QVariant valueSwatch(const SoField& field);

} // namespace scopix
