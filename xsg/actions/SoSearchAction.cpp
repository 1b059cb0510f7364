// SPDX-License-Identifier: MIT
#include <xsg/actions/SoSearchAction.h>

#include <xsg/actions/SoTraversal.h>
#include <xsg/counters/LibraryCounters.h>

void SoSearchAction::setName(SbName name)
{
    m_name = name;
    m_hasName = true;
}

void SoSearchAction::setType(SoType type, bool derived)
{
    m_type = type;
    m_derived = derived;
}

bool SoSearchAction::matches(const SoNode* node) const
{
    if (m_node && node != m_node)
        return false;
    if (m_hasName && node->getName() != m_name)
        return false;
    if (m_type.isBad())
        return true;
    return m_derived ? node->isOfType(m_type) : node->getTypeId() == m_type;
}

const std::vector<SoPath>& SoSearchAction::apply(SoNode* root)
{
    struct Frame {
        SoNode* node;
        int child;
    };
    xsg::feeds.searches.add();
    m_paths.clear();
    std::vector<Frame> frames;
    int visits = 0;
    const auto visit = [&](SoNode* node) {
        ++visits;
        frames.push_back({node, -1});
        if (!matches(node))
            return;
        SoPath& path = m_paths.emplace_back();
        for (const Frame& frame : frames)
            path.append(frame.node);
    };
    if (root && m_limit != 0)
        visit(root);
    while (!frames.empty() && visits < SoTraversal::MostVisits &&
           (m_limit < 0 || static_cast<int>(m_paths.size()) < m_limit)) {
        Frame& frame = frames.back();
        const SoGroup* group = frame.node->asGroup();
        if (group && ++frame.child < group->getNumChildren())
            visit(group->getChild(frame.child));
        else
            frames.pop_back();
    }
    return m_paths;
}

SoNode* SoSearchAction::find(SoNode* root)
{
    const int limit = std::exchange(m_limit, 1);
    apply(root);
    m_limit = limit;
    return m_paths.empty() ? nullptr : m_paths.front().getTail();
}
