// SPDX-License-Identifier: MIT
#pragma once

class SoField;

namespace inspector
{

/// How a field is edited in the panel.
enum class FieldKind { Numbers, Color, Rotation, Matrix, Bool, Enum, Mask, Text, File, Node, Image, List };

/// A list of one value is edited as that value, where its type can be.
FieldKind kindOf(const SoField& field);
/// How many lines its inputs take below each other.
int linesOf(const SoField& field);
/// Whether its inputs need the width of the whole panel where that is narrow.
bool isWide(const SoField& field);

} // namespace inspector
