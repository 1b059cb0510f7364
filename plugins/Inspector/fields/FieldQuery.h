// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SoField;

namespace inspector
{

/// What finds the nodes whose field of this name has the same value, as in "shininess=0.2", for the line that
/// finds in the scene. Empty for a value that no query can name.
QString queryFor(const SoField& field);

} // namespace inspector
