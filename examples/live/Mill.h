// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/transforms/SoTransform.h>

/// A windmill whose sails turn, with a field of stones around it that is as large as one likes. In the thread
/// that made it.
class Mill
{
public:
    explicit Mill(int stones);

    /// Turns the sails by a frame's worth.
    void step();

    SoRef<SoSeparator> root;
    SoRef<SoPerspectiveCamera> camera;

private:
    SoRef<SoTransform> m_sails;
    float m_angle = 0;
};
