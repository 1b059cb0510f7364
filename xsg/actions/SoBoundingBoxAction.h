// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/values/SbBox.h>

/// Finds the box around what can be seen of a scene. Separators remember the box of what is below them, so
/// that after a change only those above it are looked at again. Where separators are turned inside one
/// another the box may be larger than the tightest one; it always encloses.
class XSG_API SoBoundingBoxAction : private SoTraversal
{
public:
    /// In the coordinates the root stands in; empty where there is nothing to see.
    SbBox3f getBox(SoNode* root);
    /// How many nodes the last call looked at.
    using SoTraversal::getNumVisited;

    /// Whether the separator's remembered box holds, given the state at it.
    static bool isValid(const SoSeparator& separator, const SoState& stateAt);

private:
    bool wantsGroup(SoGroup* group) override;
    void enterGroup(SoGroup* group) override;
    void leaveGroup(SoGroup* group) override;
    void visitShape(SoShape* shape) override;
    void extend(const SbBox3f& box);

    /// A separator that is open, and what is around the part of it that was visited, in its coordinates.
    struct Open {
        SbBox3f box;
        SoSeparator::ChildBoxes* children = nullptr;
        bool isAfresh = false; // all children are visited
    };
    void openChildren(const SoSeparator& separator, Open& open);
    static void closeChildren(const SoSeparator& separator, Open& open);
    static void passOthers(SoSeparator::ChildBoxes& children, std::size_t end);
    SbBox3f placed(const SbBox3f& box);
    void keepChild(const SbBox3f& box);
    std::vector<Open> m_open;
    std::int64_t m_hits = 0;
    std::int64_t m_misses = 0;
};
