// SPDX-License-Identifier: MIT
#include "live/LiveFetching.h"

#include "live/LiveScene.h"
#include "live/LiveValues.h"
#include "text/NodeText.h"

#include <algorithm>

namespace scopix
{

namespace
{

constexpr std::uint32_t FirstPiece = 500; // children that a view needs at once
constexpr std::uint32_t LargestPiece = 16000;
constexpr std::size_t MostChildren = 4'000'000;
constexpr std::size_t MostObjects = 256; // that the properties of a node refer to

// Stands for a node where that would stand within itself.
live::NodeInfo repetitionOf(const SoNode& node)
{
    live::NodeInfo info;
    info.type = "Repetition";
    info.name = nodeText(node).toStdString();
    return info;
}

} // namespace

LiveFetching::LiveFetching(LiveScene& scene)
    : m_scene(scene)
{
}

bool LiveFetching::isOver() const
{
    return m_scene.getState() == LiveScene::State::Ended;
}

// --- Children

void LiveFetching::fetchChildren(LiveNode& node)
{
    if (node.m_childrenFetched != LiveNode::Fetched::No || isOver())
        return;
    node.m_childrenFetched = LiveNode::Fetched::Asked;
    node.m_fetched.clear(); // what was moved here before comes again
    const NodeRef kept(&node);
    if (&node == m_scene.getRoot())
        return m_scene.getLink().roots(
            [this](const std::vector<live::NodeInfo>& roots) { rootsCame(roots); });
    if (node.getId() == 0)
        return fetched(node);
    m_scene.watchChildren(node);
    if (node.m_propertiesFetched == LiveNode::Fetched::Yes && !node.m_hasObjects) {
        node.m_propertiesFetched = LiveNode::Fetched::Asked;
        node.m_onProperties.push_back([this, kept] { fetchPiece(kept, 0, false); });
        return fetchObjects(kept);
    }
    fetchProperties(node, [this, kept] { fetchPiece(kept, 0, false); });
}

void LiveFetching::fetchChildrenAgain(LiveNode& node)
{
    if (node.m_childrenFetched == LiveNode::Fetched::Asked) {
        node.m_isAskedAgain = true;
        return;
    }
    if (node.m_childrenFetched == LiveNode::Fetched::No || isOver())
        return;
    node.m_childrenFetched = LiveNode::Fetched::Asked;
    node.m_fetched.clear();
    if (&node == m_scene.getRoot())
        m_scene.getLink().roots([this](const std::vector<live::NodeInfo>& roots) { rootsCame(roots); });
    else
        fetchPiece(NodeRef(&node), 0, true);
}

void LiveFetching::rootsCame(const std::vector<live::NodeInfo>& roots)
{
    LiveNode& root = m_scene.getRootNode();
    root.m_fetched.clear();
    for (const live::NodeInfo& info : roots)
        root.m_fetched.emplace_back(m_scene.nodeFor(info).get());
    setChildren(root);
    fetched(root);
}

void LiveFetching::fetchPiece(const NodeRef& node, std::uint32_t first, bool isAgain)
{
    const std::uint32_t count = std::clamp(first, FirstPiece, LargestPiece);
    m_scene.getLink().children(node->getId(), first, count, [=](const std::vector<live::NodeInfo>& piece) {
        pieceCame(node, first, isAgain, count, piece);
    });
}

void LiveFetching::pieceCame(const NodeRef& node, std::uint32_t first, bool isAgain, std::uint32_t asked,
                             const std::vector<live::NodeInfo>& piece)
{
    const std::size_t taken = std::min<std::size_t>(piece.size(), asked);
    for (std::size_t i = 0; i < taken; ++i)
        node->m_fetched.emplace_back(m_scene.nodeFor(piece[i]).get());
    const auto next = static_cast<std::uint32_t>(first + taken);
    const bool isLast = taken == 0 || (taken < asked && next >= node->m_info.childCount);
    if (isLast && isAgain && (node->m_isOutdated || m_scene.getChildEdits().areWritten(*node)))
        return fetchEditedAgain(*node);
    if (isLast || !isAgain)
        setChildren(*node);
    if (isLast)
        return fetched(*node);
    if (next >= MostChildren) {
        emit m_scene.told(
            LiveScene::tr("“%1” has more children than can be shown: those after the first %L2 are left out.")
                .arg(nodeText(*node))
                .arg(next));
        return fetched(*node);
    }
    m_scene.getWays().goOn();
    fetchPiece(node, next, isAgain);
}

// What came is older than the edits, which have to be with the program before it is asked.
void LiveFetching::fetchEditedAgain(LiveNode& node)
{
    const NodeRef kept(&node);
    m_scene.getChildEdits().whenSettled([this, kept] {
        kept->m_childrenFetched = LiveNode::Fetched::Yes;
        LiveChildEdits::noteChildren(*kept, kept->getChildren());
        kept->m_isAskedAgain = kept->m_isOutdated = false;
        fetchChildrenAgain(*kept);
    });
}

void LiveFetching::fetched(LiveNode& node)
{
    const NodeRef kept(&node);
    node.m_childrenFetched = LiveNode::Fetched::Yes;
    node.m_fetched.shrink_to_fit();
    m_scene.apply([&] { node.touch(); });
    if (std::exchange(node.m_isAskedAgain, false))
        fetchChildrenAgain(node);
    m_scene.getWays().goOn();
}

// Children at both ends that stay are not touched, with whatever is selected and unfolded there.
void LiveFetching::setChildren(LiveNode& node)
{
    std::vector<SoNode*> wanted;
    wanted.reserve(node.m_objects.size() + node.m_fetched.size());
    for (const auto* part : {&node.m_objects, &node.m_fetched}) {
        for (const auto& child : *part)
            wanted.push_back(child.get());
    }
    const int before = node.getNumChildren();
    const int now = static_cast<int>(wanted.size());
    int head = 0;
    while (head < std::min(before, now) && node.getChild(head) == wanted[static_cast<std::size_t>(head)])
        ++head;
    int tail = 0;
    while (tail < std::min(before, now) - head &&
           node.getChild(before - 1 - tail) == wanted[static_cast<std::size_t>(now - 1 - tail)])
        ++tail;
    m_scene.apply([&] {
        for (int i = before - tail - 1; i >= head; --i)
            node.removeChild(i);
        for (int i = head; i < now - tail; ++i)
            insert(node, *wanted[static_cast<std::size_t>(i)], i);
    });
    node.m_told = node.getChildren();
}

void LiveFetching::insert(LiveNode& parent, SoNode& child, int index)
{
    if (!parent.insertChild(&child, index))
        parent.insertChild(m_scene.nodeFor(repetitionOf(child)).get(), index);
}

// --- Properties

void LiveFetching::fetchProperties(LiveNode& node, const std::function<void()>& then)
{
    if (node.m_propertiesFetched == LiveNode::Fetched::Yes)
        return then();
    node.m_onProperties.push_back(then);
    if (node.m_propertiesFetched == LiveNode::Fetched::Asked)
        return;
    node.m_propertiesFetched = LiveNode::Fetched::Asked;
    const NodeRef kept(&node);
    m_scene.getLink().properties(node.getId(),
                                 [this, kept](const std::vector<live::PropertyInfo>& properties) {
                                     propertiesCame(kept, properties);
                                 });
}

void LiveFetching::propertiesCame(const NodeRef& node, const std::vector<live::PropertyInfo>& properties)
{
    m_scene.apply([&] { node->setProperties(properties); });
    fetchObjects(node);
}

// Answers come in the order of the questions, so that the last one ends it.
void LiveFetching::fetchObjects(const NodeRef& node)
{
    auto ids = std::make_shared<std::vector<live::NodeId>>();
    std::vector<std::string> names;
    for (const auto& property : node->m_properties) {
        if (property->info.kind == live::ValueKind::Object)
            names.push_back(property->info.name);
    }
    if (names.empty())
        return propertiesFetched(*node);
    for (const std::string& name : names) {
        const bool isLast = &name == &names.back();
        m_scene.getLink().value(node->getId(), name, [=](const std::optional<live::Value>& value) {
            const auto objects = value ? objectsIn(*value) : std::vector<live::NodeId>();
            ids->insert(ids->end(), objects.begin(), objects.end());
            if (isLast)
                objectsCame(node, *ids);
        });
    }
}

void LiveFetching::objectsCame(const NodeRef& node, const std::vector<live::NodeId>& ids)
{
    const std::size_t count = std::min(ids.size(), MostObjects);
    if (count == 0)
        return propertiesFetched(*node);
    auto objects = std::make_shared<std::vector<SoRef<SoNode>>>();
    for (std::size_t i = 0; i < count; ++i) {
        m_scene.getLink().node(ids[i], [=](const std::optional<live::NodeInfo>& info) {
            if (info && info->id != 0)
                objects->emplace_back(m_scene.nodeFor(*info).get());
            if (i + 1 < count)
                return;
            node->m_objects = *objects;
            setChildren(*node);
            propertiesFetched(*node);
        });
    }
}

void LiveFetching::propertiesFetched(LiveNode& node)
{
    const NodeRef kept(&node);
    node.m_propertiesFetched = LiveNode::Fetched::Yes;
    node.m_hasObjects = true;
    for (const auto& then : std::exchange(node.m_onProperties, {}))
        then();
}

} // namespace scopix
