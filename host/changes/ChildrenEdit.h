// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>

#include <vector>

namespace scopix
{

/// What edits made of the children of one group: keeps the part of the list that was edited as it was, and
/// those nodes alive. GUI thread only; the group must outlive it.
class ChildrenEdit
{
public:
    using Children = std::vector<SoNode*>;

    explicit ChildrenEdit(SoGroup& group)
        : m_group(group)
    {
    }

    SoGroup& group() const { return m_group; }
    /// Before each edit, as of StructureWatch.
    void aboutToChange(int start, int removed);
    /// Somebody else has changed the list too, so that the part is no longer known.
    bool isLost() const;
    bool isNothing() const { return before() == after(); }

    /// The part as it was, and as it is.
    Children before() const;
    Children after() const;
    /// The whole list with another part.
    Children withPart(const Children& part) const;
    int getStart() const { return m_start; }
    /// The edits so far are announced: what else changes the list is somebody else.
    void noteCount() { m_countNow = m_group.getNumChildren(); }

private:
    int coveredNow() const;

    SoGroup& m_group;
    int m_start = 0;
    std::vector<SoRef<SoNode>> m_before;
    int m_countBefore = -1;
    int m_countNow = -1;
};

} // namespace scopix
