// SPDX-License-Identifier: MIT
#include "SoQuerySearch.h"

#include "NodeMatcher.h"

SoQuerySearch::SoQuerySearch() = default;
SoQuerySearch::SoQuerySearch(SoQuerySearch&&) noexcept = default;
SoQuerySearch& SoQuerySearch::operator=(SoQuerySearch&&) noexcept = default;
SoQuerySearch::~SoQuerySearch() = default;

SoQuerySearch::SoQuerySearch(const SoQuery& query, SoNode* root)
    : m_matcher(std::make_unique<xsg::NodeMatcher>(query.m_alternatives, root))
    , m_root(root)
    , m_begun(!root || query.isEmpty())
{
}

bool SoQuerySearch::advance(int nodes)
{
    for (int i = 0; i < nodes && !isFinished(); ++i) {
        if (SoNode* node = takeNext())
            visit(node);
    }
    return !isFinished();
}

// Null where a group ended, or where a node was seen in another place before.
SoNode* SoQuerySearch::takeNext()
{
    SoNode* node = nullptr;
    if (!m_begun) {
        node = m_root.get();
        m_begun = true;
    } else {
        OpenGroup& open = m_open.back();
        node = open.group->getChild(open.child++);
        if (!node)
            m_open.pop_back();
    }
    const bool severalPlaces = node && node->getParents().size() > 1;
    return severalPlaces && !m_seen.insert(node->getNodeId()).second ? nullptr : node;
}

void SoQuerySearch::visit(SoNode* node)
{
    if (m_matcher->matches(*node)) {
        m_found.emplace_back(node);
        m_isFound.insert(node);
    }
    if (SoGroup* group = node->asGroup())
        m_open.push_back({group, 0});
}
