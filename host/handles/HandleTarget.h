// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoFieldContainer.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/SbBox.h>
#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbRotation.h>

#include <array>
#include <memory>
#include <vector>

class SoField;

namespace scopix
{

enum class HandleMode { Select, Move, Turn, Scale };

/// A direction in which something can be moved, turned or scaled: in the coordinates that the node stands in,
/// and in the world, where it has the length 1. Without a direction in the world, there is no handle for it.
struct HandleAxis {
    SbVec3f local;
    SbVec3f world;
    bool isUsable() const { return world.dot(world) > 0; }
};
using HandleAxes = std::array<HandleAxis, 3>;

/// Moves, turns and scales one node by its fields, whatever its type. Amounts count from the values that the
/// node had at begin(), so that an amount of nothing gives back their very bits.
class HandleTarget
{
public:
    virtual ~HandleTarget() = default;
    HandleTarget(const HandleTarget&) = delete;
    HandleTarget& operator=(const HandleTarget&) = delete;

    /// Null for a node without handles. `toWorld`: from the coordinates that it stands in. `seen`: around
    /// what it concerns, in the world, for what has no place of its own.
    static std::unique_ptr<HandleTarget> make(SoNode* node, const SbMatrix& toWorld, const SbBox3f& seen);

    SoNode* getNode() const { return m_node.get(); }
    const SbMatrix& toWorld() const { return m_toWorld; }
    /// How it can be changed at all.
    virtual bool can(HandleMode mode) const = 0;
    /// Moving, only along the third axis; turning, only around it; scaling, only by one number.
    virtual bool isOneDimensional(HandleMode /*mode*/) const { return false; }
    /// Acts in the plane of the picture, along whose sides its axes are.
    virtual bool isFlat() const { return false; }
    /// Along the world's axes, and not only along its own.
    bool canBeOfWorld(HandleMode mode) const { return mode != HandleMode::Scale && !isOneDimensional(mode); }
    /// What it writes.
    virtual std::vector<SoField*> getFields(HandleMode mode) const = 0;

    /// Around which it turns, and where its handles are: in its coordinates.
    virtual SbVec3f getPivot() const = 0;
    SbVec3f getPlace() const { return m_toWorld.multPoint(getPivot()); }
    /// Its own axes, or the world's.
    HandleAxes getAxes(bool ofWorld) const;
    /// The axis that looks like this in the world.
    HandleAxis axisTo(const SbVec3f& world) const;

    virtual void begin() = 0;
    /// In its coordinates.
    virtual void move(const SbVec3f& by) = 0;
    virtual void turn(const SbRotation& by) = 0;
    virtual void scale(const SbVec3f& factors) = 0;

    /// A vector in its coordinates that is this one in the world, or comes as near as squeezed space allows.
    SbVec3f toLocal(const SbVec3f& world) const;
    bool isMirrored() const;

protected:
    HandleTarget(SoNode* node, const SbMatrix& toWorld);
    /// In its coordinates; of length 1.
    virtual std::array<SbVec3f, 3> getOwnAxes() const;

private:
    SoRef<SoNode> m_node;
    SbMatrix m_toWorld;
    SbMatrix m_toLocal; // of directions
};

} // namespace scopix
