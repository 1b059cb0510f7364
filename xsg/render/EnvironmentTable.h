// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbVec.h>
#include <xsg/values/XsgExport.h>

#include <vector>

namespace xsg
{

/// What an SoEnvironmentLight sends from this height of the sky (1 straight above, -1 straight below): the
/// parts of sky, horizon and ground, which are 1 together.
XSG_API SbVec3f environmentParts(float height);

/// The same, blurred as rough surfaces mirror it, for all environments: they differ by three colours only. A
/// row holds heights from -1 to 1. The first rows are for roughness from 0 to 1; in the last one is what a
/// matte surface collects.
struct EnvironmentTable {
    static constexpr int Columns = 64;
    static constexpr int RoughRows = 16;
    static constexpr int Rows = RoughRows + 1;
    std::vector<SbVec3f> parts; // row by row
};

XSG_API const EnvironmentTable& getEnvironmentTable();

} // namespace xsg
