// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoTraversal.h>
#include <xsg/values/SbBox.h>

namespace xsg
{
class LargeGroupCache;
}

/// Finds the box around what can be seen of a scene. The box of each separator is remembered with it, so that
/// after a change only the separators above the change are looked at again. Where separators are rotated
/// inside one another the box may be larger than the tightest one; it always encloses.
class XSG_API SoBoundingBoxAction : private SoTraversal
{
public:
    /// In the coordinates the root stands in; empty where there is nothing to see.
    SbBox3f getBox(SoNode* root);
    /// The same in pieces, between which the scene must stay as it is: advance() returns true when the box is
    /// known, or else when the time is up.
    void begin(SoNode* root);
    bool advance(std::chrono::steady_clock::time_point until);
    /// How many nodes the last call looked at.
    using SoTraversal::getNumVisited;
    /// Whether the scene repeats so much that the last box is that of a part.
    using SoTraversal::isCut;

private:
    void prepare();
    void count() const;
    bool wantsGroup(SoGroup* group) override;
    void enterGroup(SoGroup* group) override;
    void leaveGroup(SoGroup* group) override;
    void visitShape(SoShape* shape) override;
    void extend(const SbBox3f& box);

    /// A separator that is open, and the box around the part of it that was visited, in its coordinates.
    struct Open {
        SbBox3f box;
        xsg::LargeGroupCache* large = nullptr; // null: it has few children
        bool visitsAll = false;                // of its children
    };
    void openChildren(SoGroup& separator, Open& open);
    static void closeChildren(const SoGroup& separator, Open& open);
    SbBox3f placed(const SbBox3f& box);
    void keepChild(const SbBox3f& box);
    std::vector<Open> m_open;
    std::int64_t m_hits = 0;
    std::int64_t m_misses = 0;
};
