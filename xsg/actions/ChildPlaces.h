// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

class SoNode;

namespace xsg
{

/// Finds where a child stands among many. The index is made when it is first needed, four bytes a child, and
/// serves until the list of children changes.
class ChildPlaces
{
public:
    /// The list of children has changed.
    void clear() { m_byAddress.clear(); }
    /// Appends the places of the child, in order; none where it is not among the children.
    void find(const std::vector<SoNode*>& children, const SoNode* child, std::vector<std::uint32_t>& places);

private:
    void build(const std::vector<SoNode*>& children);

    std::vector<std::uint32_t> m_byAddress; // all places, by the address of the child that stands there
};

} // namespace xsg
