// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoChangeListener.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoMFMatrix.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/nodes/animation/DerivedPoints.h>
#include <xsg/nodes/base/SoMFNode.h>

/// Bends the points before it, and their normals, by the bones of a skeleton, for the vertex shapes after it.
/// Bones are transforms that stand anywhere in the scene; a bone that moves moves the points. Lists that do
/// not fit together change nothing.
class XSG_API SoSkin : public SoTyped<SoSkin, SoNode>, private SoChangeListener
{
public:
    static constexpr const char* ClassName = "Skin";

    SoMFNode bones{this, "bones"};      // transforms; none: one that never moves
    SoMFInt32 parents{this, "parents"}; // of each bone: the place of its parent, before it, or -1
    SoMFMatrix binds{this, "binds"};    // of each bone: from the points to it, as the skin was made
    SoSFInt32 place{this, "place", -1}; // the bone in whose coordinates the points stand, or -1
    SoSFInt32 bonesPerPoint{this, "bonesPerPoint", 4};
    SoMFInt32 boneIndices{this, "boneIndices"}; // so many for each point, by place in the list of bones
    SoMFFloat weights{this, "weights"};         // of each of these; of each point they add up to 1

    SoSkin() = default;
    /// Where each bone stands, in the coordinates of the points.
    std::vector<SbMatrix> getBonePlaces() const;
    void apply(SoState& state) const override;
    void notify(const SoNotification& change) override;

protected:
    ~SoSkin() override;

private:
    void changed(const SoNotification& change) override;
    void subjectDestroyed() override {}
    void watchBones();
    bool fits(int pointCount) const;
    bool hasValidPlaces() const;
    void bend(const SoState& state, SbVec3f* points, SbVec3f* normals) const;

    struct Checked {
        std::uint32_t listCount = 0;
        int pointCount = -1;
        bool isGood = false;
    };

    std::vector<SoRef<SoNode>> m_watched;
    std::uint32_t m_listCount = 1; // of changes of its own fields
    std::uint32_t m_poseCount = 0; // of moves of bones
    bool m_reportsPose = false;
    mutable bool m_isStale = false; // a bone has moved since the points were made last
    mutable Checked m_checked;
    mutable xsg::DerivedPoints m_made;
};

extern template class SoTyped<SoSkin, SoNode>;
