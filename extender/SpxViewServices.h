// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>
#include <xsg/actions/SoPath.h>
#include <xsg/values/SbVec.h>

#include <vector>

/// A click on something in the 3D view.
struct SpxPickedPoint {
    SoPath path;                 // from the scene's root to the shape
    SbVec3f point;               // in the scene's coordinates
    SoRef<SoNode> pointsNode;    // whose points are the corners of a vertex shape; null for other shapes
    int face = -1;               // of a vertex shape, as its colours per face count
    std::vector<int> points;     // the places of the face's corners in the list of points
    int nearest = -1;            // of these places, the one that is nearest to the pointer
    double nearestDistance = -1; // between that corner and the pointer, in pixels at a density of 1
};

/// Hears of clicks in the 3D view.
class SPX_API SpxPickListener
{
public:
    SpxPickListener() = default;
    SpxPickListener(const SpxPickListener&) = delete;
    SpxPickListener& operator=(const SpxPickListener&) = delete;

    /// Before the click selects what it hit. True: the click was meant for the listener, and selects nothing.
    virtual bool pointPicked(const SpxPickedPoint& picked) = 0;

protected:
    virtual ~SpxPickListener();
};

/// What a host with a 3D view may offer beyond SpxServices: marks in the picture, and where it was clicked.
/// GUI thread only.
class SPX_API SpxViewServices
{
public:
    /// Null where the host does not offer this.
    static SpxViewServices* getInstance();

    SpxViewServices(const SpxViewServices&) = delete;
    SpxViewServices& operator=(const SpxViewServices&) = delete;

    /// Marks these points, of one size on the screen, also where something covers them. They are in the
    /// coordinates of a shape that stands at the end of `place`, a path from the scene's root, and follow its
    /// transforms; nothing is marked once that place is gone. Takes the place of what the same owner had
    /// marked; no points mark nothing.
    virtual void setMarkedPoints(const void* owner, const SoPath& place,
                                 const std::vector<SbVec3f>& points) = 0;

    /// The listener has to be removed before its end.
    virtual void addPickListener(SpxPickListener* listener) = 0;
    virtual void removePickListener(SpxPickListener* listener) = 0;

protected:
    SpxViewServices() = default;
    virtual ~SpxViewServices();
};
