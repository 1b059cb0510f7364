// SPDX-License-Identifier: MIT
#include "structure/Places.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace scopix
{

namespace
{

// Finds many children of large groups without looking through them each time.
class ChildFinder
{
public:
    int find(const SoGroup& group, const SoNode* child)
    {
        Known& known = m_groups[&group];
        if (known.lookUps < FewLookUps) {
            ++known.lookUps;
            return group.findChild(child);
        }
        if (known.places.empty())
            fill(group, known);
        const auto found = known.places.find(child);
        return found == known.places.end() ? -1 : found->second;
    }

private:
    static constexpr int FewLookUps = 8;
    struct Known {
        int lookUps = 0;
        std::unordered_map<const SoNode*, int> places;
    };
    static void fill(const SoGroup& group, Known& known)
    {
        int place = 0;
        for (const SoNode* child : group.getChildren())
            known.places.emplace(child, place++);
    }

    std::unordered_map<const SoGroup*, Known> m_groups;
};

// The places among the children, from the root down; empty where the path leads nowhere.
std::vector<int> placesAlong(const SoPath& path, const SoNode* root, ChildFinder& finder)
{
    std::vector<int> places;
    if (path.isEmpty() || path.getHead() != root)
        return places;
    places.push_back(0);
    for (int i = 1; i < path.getLength(); ++i) {
        const SoGroup* group = path.getNode(i - 1)->asGroup();
        const int place = group ? finder.find(*group, path.getNode(i)) : -1;
        if (place < 0)
            return {};
        places.push_back(place);
    }
    return places;
}

bool beginsWith(const std::vector<int>& whole, const std::vector<int>& start)
{
    return start.size() <= whole.size() && std::equal(start.begin(), start.end(), whole.begin());
}

} // namespace

SoGroup* parentAt(const SoPath& path)
{
    SoNode* parent = path.getNode(path.getLength() - 2);
    return parent ? parent->asGroup() : nullptr;
}

SoPath parentPath(const SoPath& path)
{
    SoPath parent;
    for (int i = 0; i + 1 < path.getLength(); ++i)
        parent.append(path.getNode(i));
    return parent;
}

SoPath extended(SoPath path, SoNode* node)
{
    path.append(node);
    return path;
}

std::vector<SoNode*> tailsOf(const Paths& paths)
{
    std::vector<SoNode*> nodes;
    for (const SoPath& path : paths)
        nodes.push_back(path.getTail());
    return nodes;
}

bool isInScene(const SoPath& path, const SoNode* root)
{
    return areInScene({path}, root);
}

bool areInScene(const Paths& paths, const SoNode* root)
{
    ChildFinder finder;
    return std::all_of(paths.begin(), paths.end(),
                       [&](const SoPath& path) { return !placesAlong(path, root, finder).empty(); });
}

Paths topmost(const Paths& paths, const SoNode* root)
{
    struct Found {
        std::vector<int> places;
        const SoPath* path;
    };
    ChildFinder finder;
    std::vector<Found> found;
    for (const SoPath& path : paths) {
        std::vector<int> places = placesAlong(path, root, finder);
        if (!places.empty())
            found.push_back({std::move(places), &path});
    }
    std::sort(found.begin(), found.end(), [](const Found& a, const Found& b) { return a.places < b.places; });
    Paths top;
    const std::vector<int>* above = nullptr;
    for (const Found& each : found) {
        if (above && beginsWith(each.places, *above))
            continue;
        above = &each.places;
        top += *each.path;
    }
    return top;
}

bool isBelow(const SoNode* node, const SoNode* above)
{
    return findAbove(node, [above](const SoNode* each) { return each == above; });
}

const SoNode* findAbove(const SoNode* node, const std::function<bool(const SoNode*)>& isWanted)
{
    std::vector<const SoNode*> pending{node};
    std::unordered_set<const SoNode*> seen;
    while (!pending.empty()) {
        const SoNode* each = pending.back();
        pending.pop_back();
        if (isWanted(each))
            return each;
        if (seen.insert(each).second)
            pending.insert(pending.end(), each->getParents().begin(), each->getParents().end());
    }
    return nullptr;
}

int countPlaces(const SoNode* node, const SoNode* root, int most)
{
    int places = node == root ? 1 : 0;
    std::unordered_map<const SoNode*, bool> isThere;
    for (const SoNode* parent : node->getParents()) {
        const auto [known, isNew] = isThere.try_emplace(parent, false);
        if (isNew)
            known->second = isBelow(parent, root);
        places += known->second ? 1 : 0;
        if (places >= most)
            break;
    }
    return places;
}

} // namespace scopix
