// SPDX-License-Identifier: MIT
#include <xsg/nodes/base/SoTimeSource.h>

#include <xsg/core/Context.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <algorithm>
#include <vector>

namespace
{

bool standsBelow(const SoNode& node, const SoNode& root)
{
    std::vector<const SoNode*> open(node.getParents().begin(), node.getParents().end());
    std::unordered_set<const SoNode*> seen;
    while (!open.empty() && open.back() != &root) {
        const SoNode* above = open.back();
        open.pop_back();
        if (seen.insert(above).second)
            open.insert(open.end(), above->getParents().begin(), above->getParents().end());
    }
    return !open.empty();
}

} // namespace

SoTimeSource& SoTimeSource::getInstance()
{
    static auto& source = xsg::Context::get().state<SoTimeSource>();
    return source;
}

SoTimeSource::Subscriber::Subscriber(const SoNode& node)
    : m_node(node)
{
    getInstance().m_subscribers.insert(this);
}

SoTimeSource::Subscriber::~Subscriber()
{
    getInstance().m_subscribers.erase(this);
}

bool SoTimeSource::Subscriber::isMovingBelow(const SoNode* root) const
{
    return !m_node.getParents().empty() && isMoving() && (!root || standsBelow(m_node, *root));
}

bool SoTimeSource::isNeeded(const SoNode* root) const
{
    return std::any_of(m_subscribers.begin(), m_subscribers.end(),
                       [&](const Subscriber* subscriber) { return subscriber->isMovingBelow(root); });
}

bool SoTimeSource::advance(SbTime elapsed, const SoNode* root)
{
    std::vector<Subscriber*> moving;
    std::copy_if(m_subscribers.begin(), m_subscribers.end(), std::back_inserter(moving),
                 [&](const Subscriber* subscriber) { return subscriber->isMovingBelow(root); });
    for (Subscriber* subscriber : moving)
        subscriber->advance(elapsed);
    return !moving.empty();
}
