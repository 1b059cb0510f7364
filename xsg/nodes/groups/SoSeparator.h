// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/BoundingBoxTree.h>
#include <xsg/nodes/groups/SoGroup.h>

/// A group that isolates state: what its children set does not reach what follows the group.
class XSG_API SoSeparator : public SoTyped<SoSeparator, SoGroup>
{
public:
    static constexpr const char* ClassName = "Separator";

    bool isStateScope() const override { return true; }
    const SoSeparator* asSeparator() const override { return this; }

    /// What shapes below take from before the separator, as far as it matters to their boxes.
    struct Outside {
        std::uint64_t pointsId = 0;
        std::uint32_t pointsCount = 0;
        bool isVisible = true;
        friend bool operator==(const Outside& a, const Outside& b)
        {
            return a.pointsId == b.pointsId && a.pointsCount == b.pointsCount && a.isVisible == b.isVisible;
        }
    };
    /// The box of each child of a separator with many of them.
    struct ChildBoxes {
        std::vector<SbBox3f> boxes;        // in the coordinates at the separator; empty for the others:
        std::vector<std::uint32_t> others; // places of children that are no separators
        xsg::BoundingBoxTree chunks;       // of `boxes`
    };
    /// The box around what is below, in the coordinates at the separator. It holds as long as nothing below
    /// nor outside changes.
    struct BoxCache {
        SbBox3f box;
        bool isValid = false;
        std::uint32_t changeCount = 0;
        Outside outside;
        std::unique_ptr<ChildBoxes> children; // null where there are few
    };
    /// Kept by SoBoundingBoxAction, used by whoever can skip what is out of sight.
    BoxCache& boxCache() const { return m_boxCache; }

private:
    mutable BoxCache m_boxCache;
};

extern template class SoTyped<SoSeparator, SoGroup>;
