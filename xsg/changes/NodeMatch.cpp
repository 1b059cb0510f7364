// SPDX-License-Identifier: MIT
#include <xsg/changes/NodeMatch.h>

#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/paths/NodeLabel.h>

#include <algorithm>
#include <deque>

namespace xsg
{

bool isWritten(const SoField& field)
{
    return !field.isDefault() || field.isIgnored() || field.isConnected();
}

std::vector<std::string> writtenFields(const SoNode& node)
{
    std::vector<std::string> names;
    forEachField(node, [&](const SoField& field) {
        field.evaluate();
        if (isWritten(field))
            names.emplace_back(field.getName().getString());
    });
    return names;
}

// Fields of an unknown type have the order in which they came, which no change of a value changes.
bool NodeMatch::areAlike(const SoNode& before, const SoNode& after)
{
    if (before.getTypeId() != after.getTypeId() || typeNameOf(before) != typeNameOf(after))
        return false;
    if (before.getTypeId() != SoUnknownNode::getClassTypeId())
        return true;
    const std::vector<std::string> wanted = writtenFields(after);
    std::vector<std::string> reached;
    forEachField(before, [&](const SoField& field) {
        if (std::find(wanted.begin(), wanted.end(), field.getName().getString()) != wanted.end())
            reached.emplace_back(field.getName().getString());
    });
    for (const std::string& name : wanted)
        if (!before.getField(SbName(SbString(name))))
            reached.push_back(name);
    return reached == wanted;
}

NodeMatch::NodeMatch(SoNode* before, SoNode* after, const WorkPieces::GoOn& goOn)
    : m_pieces(goOn)
    , m_before(before, goOn)
    , m_after(after, goOn)
{
    if (areAlike(*before, *after))
        match(before, after);
    matchBelow(after);
    matchMoved();
}

void NodeMatch::match(SoNode* before, SoNode* after)
{
    m_oldOf[*after].node = before;
    m_newOf[*before].node = after;
    if (after->asGroup())
        m_alignment[*after] = Alignment::Unknown; // and no more what it was as a new group
}

// Each node is decided on in its first place.
void NodeMatch::matchBelow(SoNode* root)
{
    std::vector<SoNode*> open{root};
    while (!open.empty()) {
        m_pieces.step();
        SoGroup* group = open.back()->asGroup();
        open.pop_back();
        if (!group)
            continue;
        SoNode* old = oldOf(*group);
        const bool isSame = isAligned(*group);
        const std::vector<int>& places = alignmentOf(*group);
        for (int i = 0; i < group->getNumChildren(); ++i) {
            SoNode* child = group->getChild(i);
            if (!m_after.isFirst(*child, group, i) || oldOf(*child))
                continue;
            const int place = isSame ? i : places[static_cast<std::size_t>(i)];
            SoNode* candidate = place < 0 ? nullptr : old->asGroup()->getChild(place);
            if (candidate && !newOf(*candidate) && areAlike(*candidate, *child))
                match(candidate, child);
            else if (place < 0 && m_isInserted.insert(child).second)
                m_inserted.push_back(child);
            else if (place >= 0)
                m_isInserted.erase(child);
        }
        // Those that come first in the scene are the first to be decided on.
        for (int i = group->getNumChildren() - 1; i >= 0; --i)
            if (m_after.isFirst(*group->getChild(i), group, i))
                open.push_back(group->getChild(i));
    }
}

namespace
{

// Of nodes with equal content.
constexpr std::size_t MostTried = 32;

struct Candidates {
    std::unordered_map<std::uint64_t, std::deque<SoNode*>> byContent;
    std::unordered_map<std::string, std::vector<SoNode*>> byName;
};

std::string nameKey(const SoNode& node)
{
    if (node.getName().getLength() == 0)
        return {};
    return std::string(typeNameOf(node).getString()) + '\n' + node.getName().getString();
}

} // namespace

struct NodeMatch::Pool {
    Candidates before;
    std::unordered_map<std::string, int> newNames;

    SoNode* find(const NodeMatch& match, std::uint64_t content, const SoNode& node)
    {
        const auto isFree = [&](const SoNode* each) { return !match.newOf(*each) && areAlike(*each, node); };
        std::deque<SoNode*>& equal = before.byContent[content];
        while (!equal.empty() && match.newOf(*equal.front()))
            equal.pop_front();
        SoNode* otherName = nullptr;
        for (std::size_t i = 0; i < std::min(equal.size(), MostTried); ++i) {
            SoNode* each = equal[i];
            if (!isFree(each))
                continue;
            if (each->getName() == node.getName())
                return each;
            if (!otherName && each->getName().getLength() > 0 && node.getName().getLength() > 0)
                otherName = each;
        }
        const std::string key = nameKey(node);
        const auto named = before.byName.find(key);
        const bool isUnique = !key.empty() && named != before.byName.end() && named->second.size() == 1 &&
                              newNames[key] == 1 && isFree(named->second.front());
        return isUnique ? named->second.front() : otherName;
    }
};

void NodeMatch::matchMoved()
{
    if (m_inserted.empty())
        return;
    Pool pool;
    for (SoNode* node : m_before.getNodes()) {
        if (newOf(*node))
            continue;
        pool.before.byContent[m_hash.ofContent(node)].push_back(node);
        if (const std::string key = nameKey(*node); !key.empty())
            pool.before.byName[key].push_back(node);
    }
    if (pool.before.byContent.empty())
        return;
    for (const SoNode* node : m_after.getNodes())
        if (!oldOf(*node))
            ++pool.newNames[nameKey(*node)];
    for (SoNode* node : m_after.getNodes()) {
        if (oldOf(*node) || m_isInserted.count(node) == 0)
            continue;
        SoNode* old = pool.find(*this, m_hash.ofContent(node), *node);
        if (!old)
            continue;
        match(old, node);
        matchBelow(node);
    }
}

bool NodeMatch::isAligned(SoGroup& newGroup)
{
    if (m_alignment.find(newGroup) == Alignment::Unknown)
        align(newGroup);
    return m_alignment.find(newGroup) == Alignment::Same;
}

const std::vector<int>& NodeMatch::alignmentOf(SoGroup& newGroup)
{
    static const std::vector<int> none;
    return isAligned(newGroup) ? none : m_places[&newGroup];
}

void NodeMatch::align(SoGroup& after)
{
    const SoNode* old = oldOf(after);
    const SoGroup* before = old ? const_cast<SoNode*>(old)->asGroup() : nullptr;
    const auto& children = after.getChildren();
    const auto sameLabel = [](const SoNode* a, const SoNode* b) { return labelOf(*a) == labelOf(*b); };
    if (before && std::equal(before->getChildren().begin(), before->getChildren().end(), children.begin(),
                             children.end(), sameLabel)) {
        m_alignment[after] = Alignment::Same;
        return;
    }
    m_alignment[after] = Alignment::Other;
    m_places[&after] = before ? alignChildren(*before, after) : std::vector<int>(children.size(), -1);
}

std::vector<int> NodeMatch::alignChildren(const SoGroup& before, const SoGroup& after)
{
    struct Places {
        std::vector<int> before;
        std::vector<int> after;
    };
    std::vector<int> result(after.getChildren().size(), -1);
    std::unordered_map<const char*, Places> byLabel;
    for (int i = 0; i < before.getNumChildren(); ++i)
        byLabel[labelOf(*before.getChild(i)).getString()].before.push_back(i);
    for (int i = 0; i < after.getNumChildren(); ++i)
        byLabel[labelOf(*after.getChild(i)).getString()].after.push_back(i);
    for (const auto& [label, places] : byLabel)
        alignLabel(before, places.before, after, places.after, result);
    return result;
}

// Where the counts differ, what is equal at both ends and what is left of the shorter one decides which are
// the others.
void NodeMatch::alignLabel(const SoGroup& before, const std::vector<int>& oldPlaces, const SoGroup& after,
                           const std::vector<int>& newPlaces, std::vector<int>& result)
{
    const std::size_t oldCount = oldPlaces.size();
    const std::size_t newCount = newPlaces.size();
    const std::size_t fewer = std::min(oldCount, newCount);
    const auto pair = [&](std::size_t from, std::size_t to) {
        result[static_cast<std::size_t>(newPlaces[to])] = oldPlaces[from];
    };
    const auto isSame = [&](std::size_t from, std::size_t to) {
        return m_hash.of(before.getChild(oldPlaces[from])) == m_hash.of(after.getChild(newPlaces[to]));
    };
    std::size_t front = 0;
    std::size_t back = 0;
    if (oldCount != newCount) {
        while (front < fewer && isSame(front, front))
            ++front;
        while (front + back < fewer && isSame(oldCount - 1 - back, newCount - 1 - back))
            ++back;
    }
    for (std::size_t i = 0; i < front; ++i)
        pair(i, i);
    for (std::size_t i = 1; i <= back; ++i)
        pair(oldCount - i, newCount - i);
    // The middle of the shorter one, within that of the longer one.
    const bool isShorterOld = oldCount < newCount;
    const std::size_t end = (isShorterOld ? newCount : oldCount) - back;
    std::vector<std::size_t> within;
    for (std::size_t i = front, at = front; i < fewer - back; ++i, ++at) {
        if (oldCount != newCount)
            while (at < end && !(isShorterOld ? isSame(i, at) : isSame(at, i)))
                ++at;
        if (at >= end)
            break;
        within.push_back(at);
    }
    const bool isWithin = within.size() == fewer - back - front;
    for (std::size_t i = front; i < fewer - back; ++i) {
        const std::size_t at = isWithin ? within[i - front] : i;
        if (isShorterOld)
            pair(i, at);
        else
            pair(at, i);
    }
}

std::vector<int> NodeMatch::removedFrom(const SoGroup& oldGroup, SoGroup& newGroup)
{
    if (isAligned(newGroup))
        return {};
    std::vector<char> stays(oldGroup.getChildren().size(), 0);
    for (const int place : alignmentOf(newGroup))
        if (place >= 0)
            stays[static_cast<std::size_t>(place)] = 1;
    std::vector<int> removed;
    for (std::size_t i = 0; i < stays.size(); ++i)
        if (stays[i] == 0)
            removed.push_back(static_cast<int>(i));
    return removed;
}

} // namespace xsg
