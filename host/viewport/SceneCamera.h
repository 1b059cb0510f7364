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

/// Makes `view`, which is in world coordinates, show what the scene's camera does at this aspect ratio. A
/// camera defines the height of its picture and not the width: a picture narrower than LeastAspect shows more
/// above and below, so that it shows as much at the sides. Where the types differ, another camera replaces
/// `view`; for a type not known here that is a perspective one.
void matchCamera(const SceneCamera& original, float aspect, SoRef<SoCamera>& view);
constexpr float LeastAspect = 1.5F;

/// This camera, if it is of that type, or another in its place. A renderer that is given another camera
/// traverses the whole scene again.
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
