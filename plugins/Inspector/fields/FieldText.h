// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SoField;
class SoFieldContainer;

namespace inspector
{

/// The node's name, or its type's where it has none.
QString nodeLabel(const SoFieldContainer& node);
/// "Harbour/Sea/Water.shininess", from the scene's root where the node is selected there.
QString pathOf(const SoField& field);
QString pathOf(const SoFieldContainer& node);
QString sceneText(const SoField& field);
QString cppText(const SoField& field);
/// Makes a node of the same values, without its children.
QString cppText(const SoFieldContainer& node);
/// A short line about the value, whatever its size.
QString summary(const SoField& field);
/// "3 values, 0 to 2.5: 0, 1, 2.5".
QString listSummary(const SoField& list);

} // namespace inspector
