// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/transforms/SoTransform.h>

/// A few solids on a plate that can be turned.
struct Scene {
    Scene();

    SoRef<SoSeparator> root;
    SoRef<SoTransform> plate; // turns what stands on it
};
