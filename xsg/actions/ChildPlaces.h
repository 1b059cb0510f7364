// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroupExtension.h>

#include <cstdint>
#include <vector>

class SoNode;

namespace xsg
{

/// Finds where a child stands among many. The index is made when it is first needed, four bytes a child, and
/// follows a few changes of the list of children.
class ChildPlaces
{
public:
    /// The list of children has changed.
    void note(const SoChildrenChange& change);
    /// Appends the places of the child, in order; none where it is not among the children.
    void find(const std::vector<SoNode*>& children, const SoNode* child, std::vector<std::uint32_t>& places);

private:
    void build(const std::vector<SoNode*>& children);
    void follow(const std::vector<SoNode*>& children);

    std::vector<SoChildrenChange> m_changes; // that it does not know yet
    std::vector<std::uint32_t> m_byAddress;  // all places, by the address of the child that stands there
};

} // namespace xsg
