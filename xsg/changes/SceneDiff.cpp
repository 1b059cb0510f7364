// SPDX-License-Identifier: MIT
#include <xsg/changes/SceneDiff.h>

#include <xsg/changes/FieldDiff.h>
#include <xsg/changes/NodeMatch.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/paths/NodeLabel.h>

#include <algorithm>

namespace xsg
{

namespace
{

using Kind = SceneChange::Kind;
using Origin = SceneChange::Origin;
using Step = SoScenePath::Step;

std::string nameText(const SoNode& node)
{
    return node.getName().getString();
}

std::unordered_map<const char*, int> countLabels(const SoGroup* group)
{
    std::unordered_map<const char*, int> counts;
    if (group)
        for (const SoNode* child : group->getChildren())
            ++counts[labelOf(*child).getString()];
    return counts;
}

// The places whose children keep their order among each other: as many as possible.
std::vector<char> keptInOrder(const std::vector<int>& places)
{
    std::vector<std::size_t> ends; // of the best sequence of each length, by its last element
    std::vector<std::size_t> previous(places.size(), 0);
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] < 0)
            continue;
        const auto at = std::lower_bound(ends.begin(), ends.end(), places[i],
                                         [&](std::size_t end, int place) { return places[end] < place; });
        previous[i] = at == ends.begin() ? i : *(at - 1);
        if (at == ends.end())
            ends.push_back(i);
        else
            *at = i;
    }
    std::vector<char> kept(places.size(), 0);
    for (std::size_t i = ends.empty() ? 0 : ends.back(), n = ends.size(); n > 0; --n, i = previous[i])
        kept[i] = 1;
    return kept;
}

/// Goes through the scene after, place by place, and says what is to be done there.
class Comparison
{
public:
    Comparison(SoNode* before, SoNode* after, const WorkPieces::GoOn& goOn)
        : m_match(before, after, goOn)
        , m_fields(m_match)
        , m_pieces(goOn)
    {
    }
    SceneChanges run();

private:
    /// A group whose children are being compared.
    struct Frame {
        SoGroup* group;
        SoNode* old; // null for a new one
        int next = 0;
        // Where children came, went or moved:
        const std::vector<int>* places = nullptr;
        std::vector<char> kept; // whether each keeps its place among those that stay
        std::unordered_map<const char*, int> before;
        std::unordered_map<const char*, int> after;
    };

    void compareRoots();
    void visit(SoNode* node);
    void openGroup(SoGroup* group);
    void writeRemovals(const Frame& frame, SoGroup* old);
    void visitChild();
    void placeChild(const Frame& frame, int position);
    void replaceChild(const Frame& frame, int position, int place);
    void insertChild(const Frame& frame, int position);
    Step stepOf(const SoGroup& group, int position);
    SoScenePath pathOf(const SoGroup& group, int position);
    std::optional<Step> anchorOf(const SoGroup& group, int position);
    void describeNew(SceneChange& change, const SoNode& node) const;
    bool leavesItsPlace(const SoNode& old);
    SceneChange& add(Kind kind, const SoScenePath& path);

    NodeMatch m_match;
    FieldDiff m_fields;
    SceneChanges m_changes;
    std::vector<Frame> m_frames;
    WorkPieces m_pieces;
    std::size_t m_visited = 0;
};

SceneChange& Comparison::add(Kind kind, const SoScenePath& path)
{
    SceneChange& change = m_changes.emplace_back();
    change.kind = kind;
    change.path = path;
    return change;
}

SceneChanges Comparison::run()
{
    compareRoots();
    visit(m_match.after().getRoot());
    const std::size_t count = m_match.after().getNodes().size();
    while (!m_frames.empty()) {
        m_pieces.step(static_cast<double>(m_visited) / static_cast<double>(count));
        if (m_frames.back().next == m_frames.back().group->getNumChildren())
            m_frames.pop_back();
        else
            visitChild();
    }
    return std::move(m_changes);
}

void Comparison::compareRoots()
{
    const SoNode& root = *m_match.after().getRoot();
    if (!m_match.oldOf(root))
        describeNew(add(Kind::Replace, {}), root);
}

void Comparison::describeNew(SceneChange& change, const SoNode& node) const
{
    change.origin = Origin::New;
    change.type = typeNameOf(node).getString();
    if (node.getName().getLength() > 0)
        change.name = nameText(node);
    if (change.kind == Kind::Replace && node.getTypeId() == SoUnknownNode::getClassTypeId())
        change.fields = writtenFields(node);
}

void Comparison::visit(SoNode* node)
{
    ++m_visited;
    SoNode* old = m_match.oldOf(*node);
    const bool isRoot = node == m_match.after().getRoot();
    if (old && old->getName() != node->getName() && (isRoot || labelOf(*old) == labelOf(*node))) {
        SceneChange& change = add(Kind::Rename, m_match.after().pathOf(*node));
        change.name = nameText(*node);
        change.was = shownText('"' + nameText(*old) + '"');
    }
    m_fields.compare(old, *node, m_changes);
    if (SoGroup* group = node->asGroup())
        openGroup(group);
}

void Comparison::openGroup(SoGroup* group)
{
    Frame frame{group, m_match.oldOf(*group), 0, nullptr, {}, {}, {}};
    if (!m_match.isAligned(*group)) {
        SoNode* old = frame.old;
        frame.places = &m_match.alignmentOf(*group);
        frame.kept = keptInOrder(*frame.places);
        frame.before = countLabels(old ? old->asGroup() : nullptr);
        frame.after = countLabels(group);
        if (old)
            writeRemovals(frame, old->asGroup());
    }
    m_frames.push_back(std::move(frame));
}

Step Comparison::stepOf(const SoGroup& group, int position)
{
    return {labelOf(*group.getChild(position)).getString(), m_match.after().labelIndexOf(group, position)};
}

SoScenePath Comparison::pathOf(const SoGroup& group, int position)
{
    SoScenePath path = m_match.after().pathOf(group);
    path.append(stepOf(group, position));
    return path;
}

std::optional<Step> Comparison::anchorOf(const SoGroup& group, int position)
{
    return position > 0 ? std::optional<Step>(stepOf(group, position - 1)) : std::nullopt;
}

void Comparison::writeRemovals(const Frame& frame, SoGroup* old)
{
    for (const int place : m_match.removedFrom(*old, *frame.group)) {
        SoNode* child = old->getChild(place);
        SceneChange& change = add(Kind::Remove, m_match.after().pathOf(*frame.group));
        const SbName label = labelOf(*child);
        change.path.append({label.getString(), m_match.before().labelIndexOf(*old, place)});
        const auto after = frame.after.find(label.getString());
        change.count = {frame.before.at(label.getString()), after == frame.after.end() ? 0 : after->second};
    }
}

// Whether it does not stand any more where it stood first.
bool Comparison::leavesItsPlace(const SoNode& old)
{
    const SoGroup* group = m_match.before().getParent(old);
    SoNode* newGroup = group ? m_match.newOf(*group) : nullptr;
    if (!newGroup)
        return true;
    if (m_match.isAligned(*newGroup->asGroup()))
        return false;
    const std::vector<int>& places = m_match.alignmentOf(*newGroup->asGroup());
    return std::find(places.begin(), places.end(), m_match.before().getPosition(old)) == places.end();
}

void Comparison::visitChild()
{
    Frame& frame = m_frames.back();
    SoGroup* group = frame.group;
    const int position = frame.next++;
    SoNode* child = group->getChild(position);
    placeChild(frame, position);
    if (m_match.after().isFirst(*child, group, position))
        visit(child);
}

void Comparison::placeChild(const Frame& frame, int position)
{
    const int place = frame.places ? (*frame.places)[static_cast<std::size_t>(position)] : position;
    if (place < 0)
        return insertChild(frame, position);
    if (!frame.kept.empty() && frame.kept[static_cast<std::size_t>(position)] == 0)
        add(Kind::Order, pathOf(*frame.group, position)).after = anchorOf(*frame.group, position);
    replaceChild(frame, position, place);
}

void Comparison::replaceChild(const Frame& frame, int position, int place)
{
    SoGroup& group = *frame.group;
    SoNode& child = *group.getChild(position);
    SoNode& old = *frame.old->asGroup()->getChild(place);
    if (m_match.oldOf(child) == &old)
        return;
    SceneChange& change = add(Kind::Replace, pathOf(group, position));
    change.was = std::string("a ") + typeNameOf(old).getString();
    if (!m_match.after().isFirst(child, &group, position)) {
        change.origin = Origin::Same;
        change.same = m_match.after().pathOf(child);
        return;
    }
    describeNew(change, child);
    const SoNode* other = m_match.newOf(old);
    if (!other || !NodeMatch::areAlike(old, child))
        return;
    change.apart = m_match.after().pathOf(*other);
    change.fields.clear();
}

void Comparison::insertChild(const Frame& frame, int position)
{
    SoNode& child = *frame.group->getChild(position);
    const char* label = labelOf(child).getString();
    const auto before = frame.before.find(label);
    SceneChange change;
    change.kind = Kind::Insert;
    change.path = pathOf(*frame.group, position);
    change.count = {before == frame.before.end() ? 0 : before->second, frame.after.at(label)};
    change.after = anchorOf(*frame.group, position);
    if (!m_match.after().isFirst(child, frame.group, position)) {
        change.origin = Origin::Same;
        change.same = m_match.after().pathOf(child);
    } else if (SoNode* old = m_match.oldOf(child)) {
        change.origin = Origin::Old;
        change.from = m_match.before().pathOf(*old);
        if (old->getName() != child.getName())
            change.name = nameText(child);
        if (leavesItsPlace(*old))
            change.kind = Kind::Move;
    } else {
        describeNew(change, child);
    }
    m_changes.push_back(std::move(change));
}

} // namespace

SceneChanges compareScenes(SoNode* before, SoNode* after)
{
    return compareScenes(before, after, {});
}

SceneChanges compareScenes(SoNode* before, SoNode* after, const std::function<void(double)>& goOn)
{
    return Comparison(before, after, goOn).run();
}

} // namespace xsg
