// SPDX-License-Identifier: MIT
#include "viewport/ViewCamera.h"

#include "viewport/OutermostPoints.h"

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

ViewCamera::Place ViewCamera::getPlace() const
{
    return {copyOf(*m_camera), m_look, m_angle, m_framed};
}

void ViewCamera::setScene(SoNode* root, const Place& place)
{
    m_root = SoRef<SoNode>(root);
    m_camera = copyOf(*place.camera);
    m_look = place.look;
    m_angle = place.angle;
    m_framed = place.framed;
    setAspect(m_aspect);
}

void ViewCamera::setAspect(float aspect)
{
    m_aspect = aspect;
    if (m_look == Look::Framed)
        frame();
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
        m_camera->viewAll(turningBox(box), m_aspect);
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

void ViewCamera::frame()
{
    m_camera->viewAll(m_framed, m_aspect); // nothing to see changes nothing
}

void ViewCamera::viewAll()
{
    m_framed = findOutermostPoints(m_root.get(), m_root.get(), m_camera->orientation.getValue());
    frame();
    m_look = Look::Framed;
}

void ViewCamera::viewNode(SoNode* node)
{
    m_framed = findOutermostPoints(m_root.get(), node, m_camera->orientation.getValue());
    if (m_framed.empty())
        return viewAll();
    frame();
    m_look = Look::Around;
}

void ViewCamera::lookFrom(const SbVec3f& side)
{
    lookAround();
    const SbVec3f focus = m_camera->getFocalPoint();
    const bool isVertical = side[0] == 0 && side[2] == 0;
    const SbVec3f up = isVertical ? SbVec3f(0, 0, side[1] > 0 ? -1.0F : 1.0F) : SbVec3f(0, 1, 0);
    m_camera->orientation.setValue(SbRotation::looking(side * -1.0F, up));
    m_camera->position.setValue(focus - m_camera->getDirection() * m_camera->focalDistance.getValue());
}

void ViewCamera::lookThrough(const SceneCamera& camera)
{
    matchCamera(camera, m_aspect, m_camera);
    m_look = Look::ThroughScene;
    lookAround(); // which finds what to turn around
}

bool ViewCamera::isParallel() const
{
    return dynamic_cast<const SoOrthographicCamera*>(m_camera.get()) != nullptr;
}

void ViewCamera::setParallel(bool on)
{
    if (on == isParallel())
        return;
    lookAround();
    const SoRef<SoCamera> before = m_camera;
    const SbVec3f focus = before->getFocalPoint();
    if (on) {
        const float angle = static_cast<SoPerspectiveCamera&>(*before).heightAngle.getValue();
        m_angle = angle > 0 && angle < Pi ? angle : StartAngle;
        ensureType<SoOrthographicCamera>(m_camera).height.setValue(2 * before->focalDistance.getValue() *
                                                                   std::tan(m_angle / 2));
        m_camera->focalDistance.setValue(before->focalDistance.getValue());
    } else {
        const float height = static_cast<SoOrthographicCamera&>(*before).height.getValue();
        ensureType<SoPerspectiveCamera>(m_camera).heightAngle.setValue(m_angle);
        m_camera->focalDistance.setValue(height / 2 / std::tan(m_angle / 2));
    }
    m_camera->orientation.setValue(before->orientation.getValue());
    m_camera->position.setValue(focus - m_camera->getDirection() * m_camera->focalDistance.getValue());
}

void ViewCamera::walk(float right, float up, float ahead)
{
    lookAround();
    const SbVec3f by = m_camera->orientation.getValue().multVec({right, up, -ahead});
    m_camera->position.setValue(m_camera->position.getValue() + by);
}

void ViewCamera::look(float right, float up)
{
    lookAround();
    m_camera->orientation.setValue(SbRotation({1, 0, 0}, up) * m_camera->orientation.getValue() *
                                   SbRotation({0, 1, 0}, -right));
}

float ViewCamera::getSceneSize() const
{
    const SbBox3f box = boxOf(m_root.get());
    return box.isEmpty() ? 0 : box.getSize().length();
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

void ViewCamera::fitDepth(const std::function<void(SbBox3f&)>& extend)
{
    SbBox3f box = boxOf(m_root.get());
    if (extend)
        extend(box);
    if (m_look != Look::ThroughScene)
        m_camera->fitDepthRange(box);
}

} // namespace scopix
