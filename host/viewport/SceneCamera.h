// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/cameras/SoCamera.h>

class SoNode;

namespace scopix
{

/// The camera that a scene brings along.
struct SceneCamera {
    SoRef<SoCamera> camera; // null: the scene has none
    SbMatrix toWorld;       // from the coordinates it stands in
};

/// The first one that counts at present: one that a switch does not choose does not. Cheap however large the
/// scene is: it looks at the groups above cameras and at what shares their state, and at nothing where there
/// is no camera.
SceneCamera findSceneCamera(SoNode* root);

/// Has `view`, which stands in the world, see what the scene's camera does in a picture of this aspect. A
/// camera tells the height of its picture and not how wide the picture was meant: in one narrower than
/// LeastAspect more is seen above and below, so that as much is seen at the sides. Where the kinds differ
/// another camera takes the place of `view`; for a kind not known here that is a perspective one.
void matchCamera(const SceneCamera& original, float aspect, SoRef<SoCamera>& view);
constexpr float LeastAspect = 1.5F;

/// This camera, if it is of that kind, or another in its place. A renderer that is given another one looks at
/// the whole scene anew.
template <class Kind>
Kind& ensureType(SoRef<SoCamera>& camera)
{
    if (auto* same = dynamic_cast<Kind*>(camera.get()))
        return *same;
    auto* fresh = new Kind;
    camera = SoRef<SoCamera>(fresh);
    return *fresh;
}

} // namespace scopix
