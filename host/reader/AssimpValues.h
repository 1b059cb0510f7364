// SPDX-License-Identifier: MIT
// The importer's values as ours.
#pragma once

#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbVec.h>

#include <assimp/matrix4x4.h>
#include <assimp/vector3.h>

namespace scopix
{

inline SbVec3f toVec(const aiVector3D& v)
{
    return {v.x, v.y, v.z};
}

/// Column vectors there, row vectors here.
inline SbMatrix toMatrix(const aiMatrix4x4& m)
{
    SbMatrix result;
    for (unsigned row = 0; row < 4; ++row) {
        for (unsigned column = 0; column < 4; ++column)
            result[static_cast<int>(column)][row] = m[row][column];
    }
    return result;
}

} // namespace scopix
