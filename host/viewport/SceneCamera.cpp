// SPDX-License-Identifier: MIT
#include "viewport/SceneCamera.h"

#include "viewport/TargetedTraversal.h"

#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/values/SbRotation.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

class CameraFinder : private TargetedTraversal
{
public:
    CameraFinder()
        : TargetedTraversal({SoCamera::getAll().begin(), SoCamera::getAll().end()})
    {
    }
    SceneCamera find(SoNode* root)
    {
        if (root && root->asGroup() && leadsThere(root->asGroup()))
            traverse(root);
        return m_found;
    }

private:
    void visitProperty(SoNode* node) override
    {
        if (state().camera != node)
            return;
        m_found.camera = SoRef<SoCamera>(static_cast<SoCamera*>(node));
        m_found.toWorld = state().modelMatrix;
        stop();
    }

    SceneCamera m_found;
};

// Puts it where the other one stands in the world.
void place(SoCamera& copy, const SoCamera& original, const SbMatrix& toWorld)
{
    copy.position.setValue(toWorld.multPoint(original.position.getValue()));
    const SbVec3f forward = toWorld.multDirection(original.getDirection());
    const SbVec3f up = toWorld.multDirection(original.orientation.getValue().multVec({0, 1, 0}));
    copy.orientation.setValue(SbRotation::looking(forward, up));
    for (SoSFFloat* distance : {&copy.nearDistance, &copy.farDistance, &copy.focalDistance})
        distance->setValue(distance->getValue() * forward.length());
    if (auto* parallel = dynamic_cast<SoOrthographicCamera*>(&copy))
        parallel->height.setValue(parallel->height.getValue() * up.length());
}

// `grown`: how much higher the picture is than the original's.
void takeLens(const SoCamera& original, float grown, SoRef<SoCamera>& view)
{
    if (const auto* parallel = dynamic_cast<const SoOrthographicCamera*>(&original)) {
        auto& copy = ensureType<SoOrthographicCamera>(view);
        copy.height.setValue(parallel->height.getValue() * grown);
        return;
    }
    auto& copy = ensureType<SoPerspectiveCamera>(view);
    if (const auto* perspective = dynamic_cast<const SoPerspectiveCamera*>(&original))
        copy.heightAngle.setValue(perspective->heightAngle.getValue());
    if (grown > 1)
        copy.heightAngle.setValue(2 * std::atan(std::tan(copy.heightAngle.getValue() / 2) * grown));
}

} // namespace

SceneCamera findSceneCamera(SoNode* root)
{
    return CameraFinder().find(root);
}

void matchCamera(const SceneCamera& original, float aspect, SoRef<SoCamera>& view)
{
    const SoCamera& camera = *original.camera;
    takeLens(camera, std::max(1.0F, LeastAspect / aspect), view);
    view->position.setValue(camera.position.getValue());
    view->orientation.setValue(camera.orientation.getValue());
    view->nearDistance.setValue(camera.nearDistance.getValue());
    view->farDistance.setValue(camera.farDistance.getValue());
    view->focalDistance.setValue(camera.focalDistance.getValue());
    if (original.toWorld != SbMatrix())
        place(*view, camera, original.toWorld);
}

} // namespace scopix
