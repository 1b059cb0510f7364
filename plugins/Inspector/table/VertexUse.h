// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPath.h>

class SoField;
class SoMField;
class SoPoints;

namespace inspector
{

/// How the values of a list belong to the corners of a shape: as the points themselves, as what each point
/// has besides (a normal, a place in a texture, a colour), or as the numbers of points.
struct VertexUse {
    enum class Kind { None, Values, Indices };

    Kind kind = Kind::None;
    SoPath shape;                     // the first one that uses the list, from the scene's root
    const SoPoints* points = nullptr; // the corners'

    /// `path`: from the scene's root to the list's node. None where no shape uses it.
    static VertexUse find(const SoPath& path, const SoField& list);

    /// The place among the points of a value; -1 for none.
    int pointOf(const SoMField& list, int element) const;
    /// The value that belongs to a point of this face; of several, the first. -1 for none.
    int elementOf(const SoMField& list, int point, int face) const;
};

} // namespace inspector
