// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/SceneCamera.h"

#include <xsg/values/SbBox.h>

#include <functional>
#include <vector>

namespace scopix
{

/// A camera of its own for a picture, and what a turntable turns it around.
struct PictureCamera {
    SoRef<SoCamera> camera;
    SbVec3f pivot;

    /// Another one, turned around the vertical through the pivot, in radians, that sees all of the box's
    /// depth where it is turned.
    SoRef<SoCamera> turned(float radians, const SbBox3f& box) const;
};

/// From where a 3D view looks at its scene. The camera is the view's own and never part of the scene, so
/// looking around edits nothing. A scene that brings a camera along is seen through it, and followed when it
/// is edited, until the user looks around; home leads back to it. GUI thread only.
class ViewCamera
{
public:
    ViewCamera();
    ViewCamera(const ViewCamera&) = delete;
    ViewCamera& operator=(const ViewCamera&) = delete;
    ~ViewCamera();

    /// The one to draw with. Another one takes its place when the scene is seen through a camera of its own.
    SoCamera& get() const { return *m_camera; }

    /// From where a scene was looked at, for when it shows again. Its camera is a copy.
    struct Place;
    Place getPlace() const;

    /// Goes home. Null: nothing to see.
    void setScene(SoNode* root);
    /// Goes where it was in this scene.
    void setScene(SoNode* root, const Place& place);
    /// Width of the picture divided by its height. What was framed stays so until the user looks around.
    void setAspect(float aspect);
    float getAspect() const { return m_aspect; }

    /// Through the scene's own camera or, where it has none or one that sees nothing of the scene, at
    /// everything a little from the side and from above.
    void goHome();
    /// From where it looks now.
    void viewAll();
    /// All of the node, or everything where it has nothing to see.
    void viewNode(SoNode* node);

    /// Looks from this side at the point that it turns around, the y axis up or, from above and below, the
    /// z axis down and up.
    void lookFrom(const SbVec3f& side);
    /// As through this one, from where it stands in the world, without following it.
    void lookThrough(const SceneCamera& camera);
    /// Sees everything in its size, or smaller the farther it is. What it turns around stays as large.
    void setParallel(bool on);
    bool isParallel() const;
    /// By lengths in the world, along its own axes.
    void walk(float right, float up, float ahead);
    /// Turns on the spot, in radians: to the right and up.
    void look(float right, float up);

    /// Both carry what is seen along, by parts of the picture's height; turning, the whole height is half a
    /// turn.
    void turn(float right, float up);
    void pan(float right, float up);
    /// Below 1 zooms in on this place of the picture, above 1 zooms out; (0, 0) is its lower left corner.
    void zoom(float factor, float x = 0.5F, float y = 0.5F);

    /// How this would look in a picture of another shape; `forTurn`: with room for what is framed from all
    /// around.
    PictureCamera getPictureCamera(float aspect, bool forTurn);

    /// Follows the scene's camera where the scene is seen through it. To be called when the scene has
    /// changed. False where the scene has none, or is not seen through it.
    bool follow();
    /// Sees all of the scene's depth, or what the scene's camera sees. To be called before a picture.
    /// `extend` adds what is seen beside the scene.
    void fitDepth(const std::function<void(SbBox3f&)>& extend = {});
    /// How large the scene is.
    float getSceneSize() const;

private:
    enum class Look {
        ThroughScene, // through the scene's camera
        Framed,       // everything is in sight
        Around        // the user has moved
    };

    bool seesAnything() const;
    void frame();
    void lookAround();
    void findPivot();

    SoRef<SoNode> m_root;
    SoRef<SoCamera> m_camera;
    Look m_look = Look::Framed;
    float m_aspect = 1;
    float m_angle = 0.785398163F;  // to come back to from a parallel view
    std::vector<SbVec3f> m_framed; // what is in sight, by its outermost points as seen from there
};

struct ViewCamera::Place {
    SoRef<SoCamera> camera;
    Look look = Look::Framed;
    float angle = 0;
    std::vector<SbVec3f> framed;
};

} // namespace scopix
