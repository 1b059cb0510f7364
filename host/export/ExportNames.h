// SPDX-License-Identifier: MIT
// What is common to all that is exported of a node.
#pragma once

#include <QString>

#include <string>

class SoNode;
struct SoGeometry;
class SoState;

namespace scopix
{

/// In UTF-8; empty where it has none.
std::string exportedName(const SoNode& node);

/// What a node is, in the plural, that no format keeps, as in "fogs"; empty for others.
QString lostKind(const SoNode& node);

/// Where a texture transform moves the picture, the coordinates are moved, which all formats know.
void moveTextureCoordinates(const SoState& state, SoGeometry& geometry);

} // namespace scopix
