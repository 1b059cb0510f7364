// SPDX-License-Identifier: MIT
#include "live/LiveWays.h"

#include "live/LiveScene.h"

#include <algorithm>

namespace scopix
{

LiveWays::LiveWays(LiveScene& scene)
    : m_scene(scene)
{
}

bool LiveWays::isOver() const
{
    return m_scene.getState() == LiveScene::State::Ended;
}

void LiveWays::find(const std::vector<live::NodeId>& path, std::function<void(const SoPath&)> done)
{
    m_waiting.push_back({path, 0, {}, std::move(done)});
    goOn();
}

void LiveWays::whenUnfolded(LiveNode& node, const std::function<void()>& act)
{
    const NodeRef kept(&node);
    if (isOver() || node.m_childrenFetched == LiveNode::Fetched::Yes)
        return act();
    m_waiting.push_back({{}, 0, {kept}, [act](const SoPath&) { act(); }});
    m_scene.getFetching().fetchChildren(node);
}

void LiveWays::goOn()
{
    std::list<Waiting> waiting;
    waiting.swap(m_waiting);
    for (auto at = waiting.begin(); at != waiting.end();) {
        if (goOn(*at)) {
            SoPath path;
            path.append(m_scene.getRoot());
            for (const NodeRef& node : at->found)
                path.append(node.get());
            const auto done = std::move(at->done);
            at = waiting.erase(at);
            done(path);
        } else {
            ++at;
        }
    }
    m_waiting.splice(m_waiting.begin(), waiting);
}

// Whether there is nothing more to wait for.
bool LiveWays::goOn(Waiting& waiting)
{
    while (true) {
        const NodeRef last = waiting.found.empty() ? NodeRef(&m_scene.getRootNode()) : waiting.found.back();
        const bool isComplete = isOver() || last->m_childrenFetched == LiveNode::Fetched::Yes;
        if (waiting.next == waiting.ids.size())
            return !waiting.ids.empty() || isComplete;
        LiveNode* next = m_scene.findNode(waiting.ids[waiting.next]);
        const auto isParent = [&](const SoGroup* parent) { return parent == last.get(); };
        if (!next || std::none_of(next->getParents().begin(), next->getParents().end(), isParent)) {
            if (isComplete)
                return true;
            m_scene.getFetching().fetchChildren(*last);
            return isOver();
        }
        waiting.found.emplace_back(next);
        ++waiting.next;
    }
}

} // namespace scopix
