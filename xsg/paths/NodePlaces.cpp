// SPDX-License-Identifier: MIT
#include <xsg/paths/NodePlaces.h>

#include <xsg/paths/NodeLabel.h>
#include <xsg/support/WorkPieces.h>

#include <algorithm>

xsg::NodePlaces::NodePlaces(SoNode* root, const std::function<void(double)>& goOn)
{
    struct Frame {
        SoGroup* group;
        int next;
    };
    std::vector<Frame> open;
    const auto visit = [&](SoNode* node, SoGroup* parent, int position) {
        Place& place = m_places[*node];
        if (place.isKnown)
            return;
        place = {parent, position, true};
        m_nodes.push_back(node);
        if (SoGroup* group = node->asGroup())
            open.push_back({group, 0});
    };
    visit(root, nullptr, 0);
    WorkPieces pieces(goOn);
    while (!open.empty()) {
        pieces.step();
        Frame& frame = open.back();
        if (frame.next == frame.group->getNumChildren()) {
            open.pop_back();
            continue;
        }
        SoGroup* group = frame.group;
        const int position = frame.next++;
        visit(group->getChild(position), group, position);
    }
}

bool xsg::NodePlaces::isFirst(const SoNode& node, const SoGroup* parent, int position) const
{
    if (node.getParents().size() == 1)
        return true; // it has no other place
    const Place place = m_places.find(node);
    return place.parent == parent && place.position == position;
}

int xsg::NodePlaces::labelIndexOf(const SoGroup& group, int position)
{
    std::vector<int>& indices = m_indices[&group];
    if (indices.empty()) {
        std::unordered_map<const char*, int> counts;
        for (const SoNode* child : group.getChildren())
            indices.push_back(counts[labelOf(*child).getString()]++);
    }
    return indices[static_cast<std::size_t>(position)];
}

SoScenePath xsg::NodePlaces::pathOf(const SoNode& node)
{
    std::vector<SoScenePath::Step> steps;
    const SoNode* at = &node;
    for (SoGroup* parent = getParent(*at); parent; at = parent, parent = getParent(*at))
        steps.push_back({labelOf(*at).getString(), labelIndexOf(*parent, getPosition(*at))});
    SoScenePath path;
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        path.append(std::move(*step));
    return path;
}
