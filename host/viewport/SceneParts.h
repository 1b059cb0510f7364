// SPDX-License-Identifier: MIT
// Which part of a scene is meant by a click on one of its shapes.
#pragma once

#include <xsg/actions/SoPath.h>

#include <QString>

namespace scopix
{

bool isSamePath(const SoPath& a, const SoPath& b);
/// To the node of this number on the path, counted from 0.
SoPath pathUpTo(const SoPath& path, int node);

/// To the nearest node with a name on the way to the shape, the scene as a whole aside; the shape itself
/// where there is none.
SoPath namedPart(const SoPath& toShape);
/// To the material that the shape is drawn with; empty where no node sets one.
SoPath materialPath(const SoPath& toShape);
/// What the next click on the shape selects: its part first; where that is selected the shape; where that is
/// selected its material, and then the part again.
SoPath clickedPart(const SoPath& toShape, const SoPath& selected);
/// To the next node with a name above; empty where there is none but the scene as a whole.
SoPath partAbove(const SoPath& selected);
/// The part's name, or the node's type, with the name of the part that a node without a name belongs to.
QString partText(const SoPath& path);

} // namespace scopix
