// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

class SoField;
class SoFieldContainer;

namespace inspector
{

std::vector<SoField*> allFields(const SoFieldContainer& node);
/// Those that do not have their default.
std::vector<SoField*> changedFields(const SoFieldContainer& node);

/// The node's values as a scene file, without its children.
QString valuesText(const SoFieldContainer& node);
/// Writes the values of the first node in a scene file's text, or of its bare lines "shininess: 0.2", to the
/// fields of the same names; undoable. False, and nothing is written, where there are none.
bool pasteValues(SoFieldContainer& node, const QString& text);

} // namespace inspector
