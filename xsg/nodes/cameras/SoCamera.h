// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFRotation.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/SbBox.h>
#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbRay.h>

#include <unordered_set>
#include <vector>

/// From where and how the scene is seen. Looks along its own negative z axis, its y axis up. The navigating
/// operations write the fields, so they can be watched, undone and saved like every edit.
class XSG_API SoCamera : public SoTyped<SoCamera, SoNode>
{
public:
    static constexpr const char* ClassName = "Camera";

    SoSFVec3f position{this, "position", {0, 0, 1}};
    SoSFRotation orientation{this, "orientation"};
    SoSFFloat nearDistance{this, "nearDistance", 0.1F};   // what is nearer is not seen
    SoSFFloat farDistance{this, "farDistance", 1000.0F};  // what is farther is not seen
    SoSFFloat focalDistance{this, "focalDistance", 5.0F}; // to the point that it turns around

    SoCamera();
    /// All that live, whether they stand in a scene or not.
    static const std::unordered_set<SoCamera*>& getAll();

    void apply(SoState& state) const override;

    /// `aspect`: width of the picture divided by its height.
    virtual SbMatrix getProjectionMatrix(float aspect) const = 0;
    SbMatrix getViewMatrix() const; // from the coordinates the camera stands in to those of the eye
    SbVec3f getDirection() const;
    SbVec3f getFocalPoint() const;
    /// The ray through a place in the picture: (0, 0) is its lower left corner, (1, 1) its upper right.
    SbRay getRay(float x, float y, float aspect) const;

    /// Moves, without turning, until the box fills the picture but for a small margin, in its middle; adapts
    /// focal and clipping distances.
    void viewAll(const SbBox3f& box, float aspect);
    /// The same for what these points enclose, which may fill the picture where its box would not.
    void viewAll(const std::vector<SbVec3f>& points, float aspect);
    void pointAt(const SbVec3f& target);
    /// Puts the clipping distances around the box, so that all of it is seen.
    void fitDepthRange(const SbBox3f& box);

    /// Turns around the focal point, in radians: around the world's y axis, then around the camera's x axis.
    void orbit(float aroundY, float aroundX);
    /// Moves sideways by parts of the picture's height, at the focal point.
    void pan(float right, float up);
    /// Below 1 comes nearer, above 1 moves away. Keeps the place (x, y) of the picture where it is.
    void zoom(float factor, float x = 0.5F, float y = 0.5F, float aspect = 1.0F);

protected:
    ~SoCamera() override;
    /// Height of what is seen at the focal point.
    virtual float getFocalHeight() const = 0;
    /// What has to be seen, around the origin, along the camera's axes; not empty.
    using Corners = std::vector<SbVec3f>;
    /// Where the camera stands, along its axes, to have these corners fill `filled` of the picture; adapts
    /// the size of what it sees where that does not follow from where it stands.
    virtual SbVec3f frame(const Corners& corners, float aspect, float filled) = 0;
    virtual void scaleView(float factor) = 0;
    /// As close as that may come; depth is kept precise by not letting it come too close.
    virtual float usableNear(float near, float far) const = 0;
};

extern template class SoTyped<SoCamera, SoNode>;
