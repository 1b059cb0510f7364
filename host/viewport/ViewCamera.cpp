// SPDX-License-Identifier: MIT
#include "viewport/ViewCamera.h"

#include "viewport/NodeBounds.h"
#include "viewport/SceneCamera.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/render/Frustum.h>
#include <xsg/values/SbRotation.h>

#include <cmath>

namespace scopix
{

namespace
{

constexpr float Pi = 3.14159265F;
// Where a scene without a camera is looked at from: a little from the side and from above.
constexpr float StartTurn = -0.55F;
constexpr float StartTilt = -0.32F;
constexpr float StartAngle = Pi / 4;

SbBox3f boxOf(SoNode* root)
{
    return root ? SoBoundingBoxAction().getBox(root) : SbBox3f();
}

SoRef<SoCamera> copyOf(const SoCamera& camera)
{
    SoRef<SoCamera> copy;
    if (const auto* parallel = dynamic_cast<const SoOrthographicCamera*>(&camera))
        ensureType<SoOrthographicCamera>(copy).height.setValue(parallel->height.getValue());
    else if (const auto* perspective = dynamic_cast<const SoPerspectiveCamera*>(&camera))
        ensureType<SoPerspectiveCamera>(copy).heightAngle.setValue(perspective->heightAngle.getValue());
    else
        ensureType<SoPerspectiveCamera>(copy);
    copy->position.setValue(camera.position.getValue());
    copy->orientation.setValue(camera.orientation.getValue());
    copy->nearDistance.setValue(camera.nearDistance.getValue());
    copy->farDistance.setValue(camera.farDistance.getValue());
    copy->focalDistance.setValue(camera.focalDistance.getValue());
    return copy;
}

// Around all that the box passes when it turns around the vertical through its centre.
SbBox3f turningBox(const SbBox3f& box)
{
    const SbVec3f half = box.getSize() * 0.5F;
    const float reach = std::hypot(half[0], half[2]);
    const SbVec3f by(reach, half[1], reach);
    return box.isEmpty() ? box : SbBox3f(box.getCenter() - by, box.getCenter() + by);
}

} // namespace

SoRef<SoCamera> PictureCamera::turned(float radians, const SbBox3f& box) const
{
    SoRef<SoCamera> copy = copyOf(*camera);
    if (radians == 0)
        return copy;
    const SbRotation turn({0, 1, 0}, radians);
    copy->position.setValue(pivot + turn.multVec(camera->position.getValue() - pivot));
    copy->orientation.setValue(camera->orientation.getValue() * turn);
    copy->fitDepthRange(box);
    return copy;
}

ViewCamera::ViewCamera()
    : m_camera(new SoPerspectiveCamera)
{
}

ViewCamera::~ViewCamera() = default;

void ViewCamera::setScene(SoNode* root)
{
    m_root = SoRef<SoNode>(root);
    goHome();
}

void ViewCamera::setAspect(float aspect)
{
    m_aspect = aspect;
    if (m_look == Look::Framed)
        viewAll();
    follow();
}

PictureCamera ViewCamera::getPictureCamera(float aspect, bool forTurn)
{
    const float before = m_aspect;
    const float focalDistance = m_camera->focalDistance.getValue();
    setAspect(aspect);
    const SbBox3f box = boxOf(m_root.get());
    const bool isFramed = forTurn && m_look == Look::Framed && !box.isEmpty();
    if (isFramed)
        frame(turningBox(box));
    else if (forTurn)
        findPivot();
    fitDepth();
    PictureCamera picture{copyOf(*m_camera), isFramed ? box.getCenter() : m_camera->getFocalPoint()};
    m_camera->focalDistance.setValue(focalDistance);
    setAspect(before);
    fitDepth();
    return picture;
}

void ViewCamera::goHome()
{
    m_look = Look::ThroughScene;
    if (follow() && seesAnything())
        return;
    ensureType<SoPerspectiveCamera>(m_camera).heightAngle.setValue(StartAngle);
    m_camera->orientation.setValue(SbRotation());
    m_camera->orbit(StartTurn, StartTilt);
    viewAll();
}

bool ViewCamera::follow()
{
    if (m_look != Look::ThroughScene)
        return false;
    const SceneCamera original = findSceneCamera(m_root.get());
    if (!original.camera)
        return false; // stays where the last one was, which may come back by an undo
    matchCamera(original, m_aspect, m_camera);
    return true;
}

bool ViewCamera::seesAnything() const
{
    const SbBox3f box = boxOf(m_root.get());
    const xsg::Frustum frustum(m_camera->getViewMatrix() * m_camera->getProjectionMatrix(m_aspect));
    return box.isEmpty() || frustum.mayShow(box);
}

void ViewCamera::frame(const SbBox3f& box)
{
    m_camera->viewAll(box, m_aspect); // an empty one changes nothing
}

void ViewCamera::viewAll()
{
    frame(boxOf(m_root.get()));
    m_look = Look::Framed;
}

void ViewCamera::viewNode(SoNode* node)
{
    const SbBox3f box = findPartBox(m_root.get(), node);
    if (box.isEmpty())
        return viewAll();
    frame(box);
    m_look = Look::Around;
}

void ViewCamera::lookAround()
{
    if (m_look == Look::ThroughScene)
        findPivot();
    m_look = Look::Around;
}

// Files seldom have a useful focal distance. Where the focal point is outside of the scene, the view turns
// around the point of the line of sight that is nearest to the scene's centre.
void ViewCamera::findPivot()
{
    const SbBox3f box = boxOf(m_root.get());
    if (box.isEmpty() || box.contains(m_camera->getFocalPoint()))
        return;
    const float distance = (box.getCenter() - m_camera->position.getValue()).dot(m_camera->getDirection());
    if (distance > 0)
        m_camera->focalDistance.setValue(distance);
}

void ViewCamera::turn(float right, float up)
{
    lookAround();
    m_camera->orbit(-right * Pi, up * Pi);
}

void ViewCamera::pan(float right, float up)
{
    lookAround();
    m_camera->pan(-right, -up);
}

void ViewCamera::zoom(float factor, float x, float y)
{
    lookAround();
    m_camera->zoom(factor, x, y, m_aspect);
}

void ViewCamera::fitDepth()
{
    if (m_look != Look::ThroughScene)
        m_camera->fitDepthRange(boxOf(m_root.get()));
}

} // namespace scopix
