// SPDX-License-Identifier: MIT
#include "handles/HandleTarget.h"

#include "handles/TransformTargets.h"

#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoPointLight.h>
#include <xsg/nodes/lights/SoSpotLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoTextureTransform.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr float LeastAngle = 0.001F;
constexpr float WidestCone = 1.57F;
constexpr float WidestPicture = 3.1F;

// The third one along the direction.
std::array<SbVec3f, 3> axesAlong(const SbVec3f& direction)
{
    const SbRotation turned = SbRotation::between({0, 0, 1}, direction);
    return {turned.multVec({1, 0, 0}), turned.multVec({0, 1, 0}), turned.multVec({0, 0, 1})};
}

class DirectionTarget : public HandleTarget
{
public:
    DirectionTarget(SoDirectionalLight* node, const SbMatrix& toWorld, const SbVec3f& middle)
        : HandleTarget(node, toWorld)
        , m_light(*node)
        , m_middle(middle)
    {
        DirectionTarget::begin();
    }
    bool can(HandleMode mode) const override { return mode == HandleMode::Turn; }
    std::vector<SoField*> getFields(HandleMode /*mode*/) const override { return {&m_light.direction}; }
    SbVec3f getPivot() const override { return m_middle; }
    void begin() override { m_before = m_light.direction.getValue(); }
    void move(const SbVec3f& /*by*/) override {}
    void turn(const SbRotation& by) override { m_light.direction.setValue(by.multVec(m_before)); }
    void scale(const SbVec3f& /*factors*/) override {}

protected:
    std::array<SbVec3f, 3> getOwnAxes() const override { return axesAlong(m_light.direction.getValue()); }

private:
    SoDirectionalLight& m_light;
    SbVec3f m_middle;
    SbVec3f m_before;
};

class PointLightTarget : public HandleTarget
{
public:
    PointLightTarget(SoPointLight* node, const SbMatrix& toWorld)
        : HandleTarget(node, toWorld)
        , m_light(*node)
    {
        PointLightTarget::begin();
    }
    bool can(HandleMode mode) const override { return mode == HandleMode::Move; }
    std::vector<SoField*> getFields(HandleMode /*mode*/) const override { return {&m_light.location}; }
    SbVec3f getPivot() const override { return m_light.location.getValue(); }
    void begin() override { m_before = m_light.location.getValue(); }
    void move(const SbVec3f& by) override { m_light.location.setValue(m_before + by); }
    void turn(const SbRotation& /*by*/) override {}
    void scale(const SbVec3f& /*factors*/) override {}

private:
    SoPointLight& m_light;
    SbVec3f m_before;
};

class SpotLightTarget : public HandleTarget
{
public:
    SpotLightTarget(SoSpotLight* node, const SbMatrix& toWorld)
        : HandleTarget(node, toWorld)
        , m_light(*node)
    {
        SpotLightTarget::begin();
    }
    bool can(HandleMode mode) const override { return mode != HandleMode::Select; }
    bool isOneDimensional(HandleMode mode) const override { return mode == HandleMode::Scale; }
    std::vector<SoField*> getFields(HandleMode mode) const override
    {
        if (mode == HandleMode::Move)
            return {&m_light.location};
        if (mode == HandleMode::Turn)
            return {&m_light.direction};
        return {&m_light.cutOffAngle};
    }
    SbVec3f getPivot() const override { return m_light.location.getValue(); }
    void begin() override
    {
        m_location = m_light.location.getValue();
        m_direction = m_light.direction.getValue();
        m_angle = m_light.cutOffAngle.getValue();
    }
    void move(const SbVec3f& by) override { m_light.location.setValue(m_location + by); }
    void turn(const SbRotation& by) override { m_light.direction.setValue(by.multVec(m_direction)); }
    void scale(const SbVec3f& factors) override
    {
        m_light.cutOffAngle.setValue(
            factors[0] == 1 ? m_angle : std::clamp(m_angle * factors[0], LeastAngle, WidestCone));
    }

protected:
    std::array<SbVec3f, 3> getOwnAxes() const override { return axesAlong(m_light.direction.getValue()); }

private:
    SoSpotLight& m_light;
    SbVec3f m_location;
    SbVec3f m_direction;
    float m_angle = 0;
};

class CameraTarget : public HandleTarget
{
public:
    CameraTarget(SoCamera* node, const SbMatrix& toWorld)
        : HandleTarget(node, toWorld)
        , m_camera(*node)
        , m_perspective(dynamic_cast<SoPerspectiveCamera*>(node))
        , m_parallel(dynamic_cast<SoOrthographicCamera*>(node))
    {
        CameraTarget::begin();
    }
    bool can(HandleMode mode) const override
    {
        return mode == HandleMode::Move || mode == HandleMode::Turn ||
               (mode == HandleMode::Scale && (m_perspective || m_parallel));
    }
    bool isOneDimensional(HandleMode mode) const override { return mode == HandleMode::Scale; }
    std::vector<SoField*> getFields(HandleMode mode) const override
    {
        if (mode == HandleMode::Move)
            return {&m_camera.position};
        if (mode == HandleMode::Turn)
            return {&m_camera.orientation};
        return {size()};
    }
    SbVec3f getPivot() const override { return m_camera.position.getValue(); }
    void begin() override
    {
        m_position = m_camera.position.getValue();
        m_orientation = m_camera.orientation.getValue();
        m_size = size() ? size()->getValue() : 0;
    }
    void move(const SbVec3f& by) override { m_camera.position.setValue(m_position + by); }
    void turn(const SbRotation& by) override
    {
        m_camera.orientation.setValue(by == SbRotation() ? m_orientation : m_orientation * by);
    }
    void scale(const SbVec3f& factors) override
    {
        const float wanted = m_size * factors[0];
        if (factors[0] == 1)
            size()->setValue(m_size);
        else if (m_perspective)
            size()->setValue(std::clamp(wanted, LeastAngle, WidestPicture));
        else
            size()->setValue(std::max(wanted, LeastAngle * m_size));
    }

protected:
    std::array<SbVec3f, 3> getOwnAxes() const override
    {
        const SbRotation turned = m_camera.orientation.getValue();
        return {turned.multVec({1, 0, 0}), turned.multVec({0, 1, 0}), turned.multVec({0, 0, 1})};
    }

private:
    SoSFFloat* size() const
    {
        return m_perspective ? &m_perspective->heightAngle : m_parallel ? &m_parallel->height : nullptr;
    }

    SoCamera& m_camera;
    SoPerspectiveCamera* m_perspective;
    SoOrthographicCamera* m_parallel;
    SbVec3f m_position;
    SbRotation m_orientation;
    float m_size = 0;
};

// Its handles are on the plane, where that is the nearest to what is cut, and it turns around there.
class ClipPlaneTarget : public HandleTarget
{
public:
    ClipPlaneTarget(SoClipPlane* node, const SbMatrix& toWorld, const SbVec3f& middle)
        : HandleTarget(node, toWorld)
        , m_node(*node)
        , m_middle(middle)
    {
        ClipPlaneTarget::begin();
    }
    bool can(HandleMode mode) const override { return mode == HandleMode::Move || mode == HandleMode::Turn; }
    bool isOneDimensional(HandleMode mode) const override { return mode == HandleMode::Move; }
    std::vector<SoField*> getFields(HandleMode /*mode*/) const override { return {&m_node.plane}; }
    SbVec3f getPivot() const override { return onPlane(m_node.plane.getValue()); }
    void begin() override
    {
        m_before = m_node.plane.getValue();
        m_pivot = onPlane(m_before);
    }
    void move(const SbVec3f& by) override
    {
        const float length = m_before.getNormal().length();
        const float along = length > 0 ? by.dot(m_before.getNormal()) / length : 0;
        m_node.plane.setValue(
            SbPlane(m_before.getNormal(), m_before.getDistanceFromOrigin() + along * length));
    }
    void turn(const SbRotation& by) override
    {
        if (by == SbRotation()) {
            m_node.plane.setValue(m_before);
            return;
        }
        const SbVec3f normal = by.multVec(m_before.getNormal());
        m_node.plane.setValue(SbPlane(normal, normal.dot(m_pivot)));
    }
    void scale(const SbVec3f& /*factors*/) override {}

protected:
    std::array<SbVec3f, 3> getOwnAxes() const override
    {
        return axesAlong(m_node.plane.getValue().getNormal());
    }

private:
    // The plane's distance counts in lengths of its normal.
    SbVec3f onPlane(const SbPlane& plane) const
    {
        const SbVec3f& normal = plane.getNormal();
        const float square = normal.dot(normal);
        if (!(square > 0))
            return m_middle;
        return m_middle + normal * ((plane.getDistanceFromOrigin() - normal.dot(m_middle)) / square);
    }

    SoClipPlane& m_node;
    SbVec3f m_middle;
    SbPlane m_before;
    SbVec3f m_pivot;
};

// What is dragged is the picture, not its coordinates: they go the other way. The length of a handle is one
// repeat of the picture.
class TextureTarget : public HandleTarget
{
public:
    TextureTarget(SoTextureTransform* node, const SbMatrix& toWorld, const SbVec3f& middle)
        : HandleTarget(node, toWorld)
        , m_node(*node)
        , m_middle(middle)
    {
        TextureTarget::begin();
    }
    bool can(HandleMode mode) const override { return mode != HandleMode::Select; }
    bool isOneDimensional(HandleMode mode) const override { return mode == HandleMode::Turn; }
    bool isFlat() const override { return true; }
    std::vector<SoField*> getFields(HandleMode mode) const override
    {
        if (mode == HandleMode::Move)
            return {&m_node.translation};
        if (mode == HandleMode::Turn)
            return {&m_node.rotation};
        return {&m_node.scaleFactor};
    }
    SbVec3f getPivot() const override { return m_middle; }
    void begin() override
    {
        m_translation = m_node.translation.getValue();
        m_rotation = m_node.rotation.getValue();
        m_scale = m_node.scaleFactor.getValue();
    }
    void move(const SbVec3f& by) override
    {
        m_node.translation.setValue(m_translation - SbVec2f(by[0], by[1]));
    }
    void turn(const SbRotation& by) override
    {
        SbVec3f axis;
        float angle = 0;
        by.getValue(axis, angle);
        m_node.rotation.setValue(m_rotation - (axis[2] < 0 ? -angle : angle));
    }
    void scale(const SbVec3f& factors) override
    {
        SbVec2f size = m_scale;
        for (int i = 0; i < 2; ++i) {
            if (factors[i] != 1 && factors[i] != 0)
                size[i] = m_scale[i] == 0 ? 1 / factors[i] : m_scale[i] / factors[i];
        }
        m_node.scaleFactor.setValue(size);
    }

private:
    SoTextureTransform& m_node;
    SbVec3f m_middle;
    SbVec2f m_translation;
    float m_rotation = 0;
    SbVec2f m_scale;
};

} // namespace

std::unique_ptr<HandleTarget> HandleTarget::make(SoNode* node, const SbMatrix& toWorld, const SbBox3f& seen)
{
    const SbVec3f center = seen.isEmpty() ? toWorld.multPoint({0, 0, 0}) : seen.getCenter();
    const auto back = toWorld.inverse();
    const SbVec3f middle = back ? back->multPoint(center) : SbVec3f();
    if (auto* transform = dynamic_cast<SoTransform*>(node))
        return std::make_unique<TransformTarget>(transform, toWorld);
    if (auto* matrix = dynamic_cast<SoMatrixTransform*>(node))
        return std::make_unique<MatrixTarget>(matrix, toWorld);
    if (auto* light = dynamic_cast<SoDirectionalLight*>(node))
        return std::make_unique<DirectionTarget>(light, toWorld, middle);
    if (auto* light = dynamic_cast<SoPointLight*>(node))
        return std::make_unique<PointLightTarget>(light, toWorld);
    if (auto* light = dynamic_cast<SoSpotLight*>(node))
        return std::make_unique<SpotLightTarget>(light, toWorld);
    if (auto* camera = dynamic_cast<SoCamera*>(node))
        return std::make_unique<CameraTarget>(camera, toWorld);
    if (auto* plane = dynamic_cast<SoClipPlane*>(node))
        return std::make_unique<ClipPlaneTarget>(plane, toWorld, middle);
    if (auto* texture = dynamic_cast<SoTextureTransform*>(node))
        return std::make_unique<TextureTarget>(texture, SbMatrix(), center);
    return nullptr;
}

} // namespace scopix
