// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>

namespace xsg
{

/// What a walk notes about each node of a scene. The nodes of a scene were mostly made one after the other,
/// so notes lie in pages of consecutive ids: little memory, and none of the long moments that a large hash
/// table takes to grow.
template <class Note>
class NodeNotes
{
public:
    Note& operator[](const SoNode& node)
    {
        auto& page = m_pages[node.getNodeId() / PageSize];
        if (!page)
            page = std::make_unique<Page>();
        return (*page)[node.getNodeId() % PageSize];
    }
    /// An empty one where nothing was noted.
    Note find(const SoNode& node) const
    {
        const auto page = m_pages.find(node.getNodeId() / PageSize);
        return page == m_pages.end() ? Note() : (*page->second)[node.getNodeId() % PageSize];
    }

private:
    static constexpr std::size_t PageSize = 256;
    using Page = std::array<Note, PageSize>;

    std::unordered_map<std::uint64_t, std::unique_ptr<Page>> m_pages;
};

} // namespace xsg
