// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbVec.h>

/// A half line: its origin and its direction (of length 1 where distances along it are to be
/// lengths).
struct SbRay {
    SbVec3f origin;
    SbVec3f direction;
    SbVec3f at(float distance) const { return origin + direction * distance; }
};
