// SPDX-License-Identifier: MIT
// What is common to all that is exported of a node, and the words for it.
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <QString>

#include <string>

struct SoGeometry;
class SoState;

namespace scopix
{

QString translated(const char* text);

template <class Node>
bool isA(const SoNode& node)
{
    return node.isOfType(Node::getClassTypeId());
}

/// In UTF-8; empty where it has none.
std::string exportedName(const SoNode& node);

/// What a node is, in the plural, that no format keeps, as in "fogs"; empty for others.
QString lostKind(const SoNode& node);

/// Where a texture transform moves the picture, the coordinates are moved, which all formats know.
void moveTextureCoordinates(const SoState& state, SoGeometry& geometry);

} // namespace scopix
