// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/GeometryStore.h>
#include <xsg/render/Shader.h>
#include <xsg/values/SbBox.h>

class SoCamera;
class SoDrawingCallback;

namespace xsg
{

/// One thing to draw: a shape, in one of the places where it stands.
struct RenderItem {
    InstanceData instance;
    SbBox3f box;                     // in world coordinates
    GpuGeometry* geometry = nullptr; // null: the place is free
    std::uint64_t rank = 0;          // grows in the order of the walk
    std::uint32_t previous = 0;      // the items before and after it in that order
    std::uint32_t next = 0;
    int drawState = 0; // its number in the list's DrawStateTable
    bool isTransparent = false;
    bool isRepeat = false; // below a group that stands in several places, and not the first of them
    bool isListed = false; // among the list's transparent items
    bool isDrawn() const { return geometry && geometry->indexCount > 0; }
};

/// An application's own drawing, between the opaque and the transparent items.
struct CallbackItem {
    const SoDrawingCallback* node;
    SbMatrix modelMatrix;
};

/// Where a scene is looked at from.
struct RenderView {
    const SoCamera* camera = nullptr; // null: the first camera in the scene
    SbVec3f eye;
};

/// What in a render list is different from what was there when changes were last taken.
struct RenderChanges {
    bool all = false;
    bool orders = false;    // the orders of drawing are other ones
    bool structure = false; // items have come or gone
    std::vector<std::uint32_t> items;
    std::vector<std::uint32_t> regrouped; // those items whose geometry or draw state is another one now
};

} // namespace xsg
