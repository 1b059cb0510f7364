// SPDX-License-Identifier: MIT
#include "OsgScene.h"

#include "OsgArrays.h"
#include "OwnNode.h"

#include <scopix/live/values/LiveSentence.h>

#include <osg/Camera>
#include <osg/LOD>
#include <osg/Sequence>
#include <osg/ShapeDrawable>
#include <osg/Switch>
#include <osgDB/ObjectWrapper>
#include <osgDB/Registry>
#include <osgText/TextBase>

#include <algorithm>
#include <cctype>
#include <functional>
#include <sstream>
#include <unordered_set>

namespace scopix::live
{

namespace
{

const char* const addable[] = {
    "osg::Group",
    "osg::MatrixTransform",
    "osg::PositionAttitudeTransform",
    "osg::Switch",
    "osg::LOD",
    "osg::Geode",
    "osg::LightSource",
    "osg::Sequence",
    "osg::ShapeDrawable",
    "osgText::Text",
    "osg::Camera",
};

std::string lower(std::string text)
{
    for (char& c : text)
        c = char(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::vector<std::string> wordsOf(const std::string& query)
{
    std::istringstream stream(lower(query));
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

std::string searchable(osg::Node& node)
{
    std::string text = node.getCompoundClassName() + ' ' + node.getName();
    if (const auto* shown = dynamic_cast<const osgText::TextBase*>(&node))
        text += ' ' + shown->getText().createUTF8EncodedString();
    return lower(text);
}

bool containsAll(const std::string& text, const std::vector<std::string>& words)
{
    return std::all_of(words.begin(), words.end(),
                       [&](const std::string& word) { return text.find(word) != std::string::npos; });
}

bool isBelow(const osg::Node& node, const osg::Node& top)
{
    std::unordered_set<const osg::Node*> known{&node};
    std::vector<const osg::Node*> open{&node};
    while (!open.empty() && open.back() != &top) {
        const osg::Node* next = open.back();
        open.pop_back();
        for (const osg::Group* parent : next->getParents())
            if (known.insert(parent).second)
                open.push_back(parent);
    }
    return !open.empty();
}

osg::ref_ptr<osg::Node> makeNode(const std::string& type)
{
    if (std::find(std::begin(addable), std::end(addable), type) == std::end(addable))
        return nullptr;
    osgDB::ObjectWrapper* wrapper = osgDB::Registry::instance()->getObjectWrapperManager()->findWrapper(type);
    osg::ref_ptr<osg::Object> made = wrapper ? wrapper->createInstance() : nullptr;
    if (auto* drawable = dynamic_cast<osg::ShapeDrawable*>(made.get())) {
        drawable->setShape(new osg::Sphere());
        renewArrays(*drawable);
    }
    return dynamic_cast<osg::Node*>(made.get());
}

StructureResult refused(const std::string& why)
{
    return {false, 0, why};
}

constexpr int MostCopied = 100'000;

/// What a copy would hold: nodes that are shared count as often as they would be copied. Stops at the most.
int countCopied(osg::Node& node)
{
    int count = 1;
    auto* group = node.asGroup();
    for (unsigned i = 0; group && i < group->getNumChildren() && count <= MostCopied; ++i)
        count += countCopied(*group->getChild(i));
    return count;
}

/// The first node that came as another type, since its class does not say how it is copied.
const osg::Node* findUnlike(const osg::Node& node, const osg::Node& copy)
{
    const osg::Group* group = node.asGroup();
    const osg::Group* copied = copy.asGroup();
    const unsigned count = group ? group->getNumChildren() : 0;
    if (node.getCompoundClassName() != copy.getCompoundClassName() ||
        count != (copied ? copied->getNumChildren() : 0))
        return &node;
    for (unsigned i = 0; i < count; ++i)
        if (const osg::Node* found = findUnlike(*group->getChild(i), *copied->getChild(i)))
            return found;
    return nullptr;
}

void forEachPair(osg::Node& node, osg::Node& copy, const OsgScene::Finish& act)
{
    act(node, copy);
    osg::Group* group = node.asGroup();
    for (unsigned i = 0; group && i < group->getNumChildren(); ++i)
        forEachPair(*group->getChild(i), *copy.asGroup()->getChild(i), act);
}

/// Values are the copy's own; pictures and textures stay shared, as do callbacks, which are the program's.
const osg::CopyOp Copying(osg::CopyOp::DEEP_COPY_NODES | osg::CopyOp::DEEP_COPY_DRAWABLES |
                          osg::CopyOp::DEEP_COPY_STATESETS | osg::CopyOp::DEEP_COPY_STATEATTRIBUTES |
                          osg::CopyOp::DEEP_COPY_ARRAYS | osg::CopyOp::DEEP_COPY_PRIMITIVES |
                          osg::CopyOp::DEEP_COPY_SHAPES | osg::CopyOp::DEEP_COPY_UNIFORMS);

/// Whether a sequence would go on to show a child that is no more.
bool wouldLackShown(const osg::Group& group)
{
    const auto* sequence = dynamic_cast<const osg::Sequence*>(&group);
    if (!sequence)
        return false;
    osg::Sequence::LoopMode mode{};
    int begin = 0;
    int end = 0;
    sequence->getInterval(mode, begin, end);
    const int left = int(group.getNumChildren()) - 1;
    return left > 0 && (begin >= left || end >= left);
}

StructureResult notDrawn()
{
    return refused(Sentence("The program was still drawing after two seconds; try again."));
}

} // namespace

bool isOwnNode(const osg::Node& node)
{
    return dynamic_cast<const OwnNode*>(&node) != nullptr;
}

OsgScene::OsgScene(OsgObjects& objects, OsgViewers& viewers)
    : m_objects(objects)
    , m_viewers(viewers)
{
}

std::vector<osg::Node*> OsgScene::childrenOf(osg::Object& object) const
{
    std::vector<osg::Node*> children;
    auto* group = dynamic_cast<osg::Group*>(&object);
    for (unsigned i = 0; group && i < group->getNumChildren(); ++i)
        if (!isOwnNode(*group->getChild(i)))
            children.push_back(group->getChild(i));
    return children;
}

NodeInfo OsgScene::infoOf(osg::Object& object)
{
    NodeInfo info;
    info.id = m_objects.id(&object);
    info.type = object.getCompoundClassName();
    info.name = object.getName();
    info.childCount = std::uint32_t(childrenOf(object).size());
    info.canHaveChildren = dynamic_cast<osg::Group*>(&object) != nullptr;
    if (const auto* node = dynamic_cast<osg::Node*>(&object))
        info.parentCount = node->getNumParents();
    return info;
}

std::vector<NodeInfo> OsgScene::roots()
{
    std::vector<NodeInfo> roots;
    for (osg::Camera* camera : m_viewers.cameras())
        roots.push_back(infoOf(*camera));
    return roots;
}

std::optional<NodeInfo> OsgScene::node(NodeId id)
{
    const osg::ref_ptr<osg::Object> object = m_objects.find(id);
    return object ? std::optional(infoOf(*object)) : std::nullopt;
}

std::vector<NodeInfo> OsgScene::children(NodeId id, std::uint32_t first, std::uint32_t count)
{
    std::vector<NodeInfo> infos;
    const osg::ref_ptr<osg::Object> object = m_objects.find(id);
    if (!object)
        return infos;
    const std::vector<osg::Node*> all = childrenOf(*object);
    for (std::size_t i = first; i < all.size() && i - first < count; ++i)
        infos.push_back(infoOf(*all[i]));
    return infos;
}

std::vector<std::vector<NodeId>> OsgScene::pathsTo(NodeId id, std::uint32_t limit)
{
    std::vector<std::vector<NodeId>> paths;
    const osg::ref_ptr<osg::Node> node = m_objects.findAs<osg::Node>(id);
    if (!node)
        return paths;
    const std::vector<osg::Camera*> cameras = m_viewers.cameras();
    std::vector<NodeId> path;
    const std::function<void(osg::Node&)> climb = [&](osg::Node& at) {
        if (paths.size() >= limit)
            return;
        path.push_back(m_objects.id(&at));
        if (std::find(cameras.begin(), cameras.end(), &at) != cameras.end())
            paths.emplace_back(path.rbegin(), path.rend());
        for (osg::Group* parent : at.getParents())
            climb(*parent);
        path.pop_back();
    };
    climb(*node);
    return paths;
}

std::vector<std::vector<NodeId>> OsgScene::find(const std::string& query, std::uint32_t limit)
{
    std::vector<std::vector<NodeId>> found;
    const std::vector<std::string> words = wordsOf(query);
    std::unordered_set<const osg::Node*> visited;
    std::vector<osg::Node*> path;
    const std::function<void(osg::Node&)> visit = [&](osg::Node& node) {
        if (found.size() >= limit || !visited.insert(&node).second)
            return;
        path.push_back(&node);
        if (containsAll(searchable(node), words)) {
            found.emplace_back();
            for (osg::Node* one : path)
                found.back().push_back(m_objects.id(one));
        }
        for (osg::Node* child : childrenOf(node))
            visit(*child);
        path.pop_back();
    };
    if (!words.empty())
        for (osg::Camera* camera : m_viewers.cameras())
            visit(*camera);
    return found;
}

std::vector<std::string> OsgScene::addableTypes(NodeId parent)
{
    if (!m_objects.findAs<osg::Group>(parent))
        return {};
    return {std::begin(addable), std::end(addable)};
}

StructureResult OsgScene::add(NodeId parent, std::uint32_t index, const std::string& type)
{
    const osg::ref_ptr<osg::Group> group = m_objects.findAs<osg::Group>(parent);
    if (!group)
        return refused(Sentence("A node can only be added to a group that still exists."));
    const osg::ref_ptr<osg::Node> node = makeNode(type);
    if (!node)
        return refused(Sentence("No node of type “%1” can be added.", {type}));
    return insertNode(*group, index, *node, nullptr);
}

StructureResult OsgScene::remove(NodeId parent, std::uint32_t index)
{
    const osg::ref_ptr<osg::Group> group = m_objects.findAs<osg::Group>(parent);
    const std::vector<osg::Node*> all = group ? childrenOf(*group) : std::vector<osg::Node*>();
    if (index >= all.size())
        return refused(Sentence("There is no such child to remove."));
    if (!m_viewers.waitForDrawing())
        return notDrawn();
    if (wouldLackShown(*group))
        return refused(
            Sentence("The child cannot be removed, since the sequence shows as many children as it "
                     "has; lower “End” first."));
    const osg::ref_ptr<osg::Node> node = all[index];
    const unsigned at = group->getChildIndex(node);
    const NodeId id = m_objects.id(node);
    ChildState& state = m_removed[{parent, id}];
    if (const auto* toggled = dynamic_cast<osg::Switch*>(group.get()))
        state.shown = toggled->getValue(at);
    if (const auto* lod = dynamic_cast<osg::LOD*>(group.get()); lod && at < lod->getNumRanges()) {
        state.least = lod->getMinRange(at);
        state.greatest = lod->getMaxRange(at);
    }
    if (const auto* sequence = dynamic_cast<osg::Sequence*>(group.get()))
        state.time = sequence->getTime(at);
    m_objects.keep(node);
    group->removeChild(at, 1);
    return {true, id, {}};
}

StructureResult OsgScene::insert(NodeId parent, std::uint32_t index, NodeId id)
{
    const osg::ref_ptr<osg::Group> group = m_objects.findAs<osg::Group>(parent);
    const osg::ref_ptr<osg::Node> node = m_objects.findAs<osg::Node>(id);
    if (!group || !node)
        return refused(Sentence("A node can only be inserted into a group, and both have to exist."));
    const auto state = m_removed.find({parent, id});
    return insertNode(*group, index, *node, state == m_removed.end() ? nullptr : &state->second);
}

StructureResult OsgScene::copy(NodeId parent, std::uint32_t index, NodeId id, const Finish& finish)
{
    const osg::ref_ptr<osg::Group> group = m_objects.findAs<osg::Group>(parent);
    const osg::ref_ptr<osg::Node> node = m_objects.findAs<osg::Node>(id);
    if (!group || !node)
        return refused(Sentence("A node can only be copied into a group, and both have to exist."));
    const std::vector<osg::Camera*> cameras = m_viewers.cameras();
    if (std::find(cameras.begin(), cameras.end(), node.get()) != cameras.end())
        return refused(Sentence("The camera of a view cannot be copied."));
    if (countCopied(*node) > MostCopied)
        return refused(Sentence("The node cannot be copied, since more than %1 nodes are below it.",
                                {std::to_string(MostCopied)}));
    if (!m_viewers.waitForDrawing())
        return notDrawn();
    const osg::ref_ptr<osg::Node> made = osg::clone(node.get(), Copying);
    const osg::Node* unlike = made ? findUnlike(*node, *made) : node.get();
    if (unlike)
        return refused(
            Sentence("The node cannot be copied, since the program does not say how objects of type "
                     "“%1” are copied.",
                     {unlike->getCompoundClassName()}));
    forEachPair(*node, *made, finish);
    return insertNode(*group, index, *made, nullptr);
}

/// What a group keeps for each child. Some groups forget to make room there when a child is inserted.
class OsgScene::KeptForChildren
{
public:
    explicit KeptForChildren(osg::Group& group)
    {
        if (const auto* lod = dynamic_cast<osg::LOD*>(&group))
            m_ranges = lod->getRangeList();
        if (const auto* sequence = dynamic_cast<osg::Sequence*>(&group))
            m_times = sequence->getTimeList();
    }

    void putBack(osg::Group& group, unsigned at, const ChildState& state) const
    {
        if (auto* toggled = dynamic_cast<osg::Switch*>(&group))
            toggled->setValue(at, state.shown);
        if (auto* lod = dynamic_cast<osg::LOD*>(&group))
            lod->setRangeList(with(m_ranges, at, {state.least, state.greatest}));
        if (auto* sequence = dynamic_cast<osg::Sequence*>(&group)) {
            const std::vector<double> times = with(m_times, at, state.time);
            for (unsigned i = 0; i < times.size(); ++i)
                sequence->setTime(i, times[i]);
        }
    }

private:
    template <class T>
    static std::vector<T> with(std::vector<T> all, unsigned at, const T& one)
    {
        all.resize(std::max<std::size_t>(all.size(), at));
        all.insert(all.begin() + std::ptrdiff_t(at), one);
        return all;
    }

    osg::LOD::RangeList m_ranges;
    std::vector<double> m_times;
};

StructureResult OsgScene::insertNode(osg::Group& group, std::uint32_t index, osg::Node& node,
                                     const ChildState* state)
{
    if (isBelow(group, node))
        return refused(Sentence("A node cannot be put below itself."));
    if (!m_viewers.waitForDrawing())
        return notDrawn();
    const std::vector<osg::Node*> all = childrenOf(group);
    const unsigned at = index < all.size() ? group.getChildIndex(all[index])
                        : all.empty()      ? 0
                                           : group.getChildIndex(all.back()) + 1;
    const KeptForChildren kept(group);
    if (!group.insertChild(at, &node))
        return refused(Sentence("The group “%1” did not take the node.", {group.getName()}));
    kept.putBack(group, at, state ? *state : ChildState());
    return {true, m_objects.id(&node), {}};
}

} // namespace scopix::live
