// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbVec.h>

namespace xsg
{

/// The eye's matrices for one frame.
struct EyeView {
    SbMatrix view;
    SbMatrix projection;
    SbMatrix viewProjection;
    SbVec4f eye; // fourth number 0: a direction
};

} // namespace xsg
