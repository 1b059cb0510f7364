// SPDX-License-Identifier: MIT
#include "live/LiveScene.h"

#include "live/LiveFrames.h"
#include "live/LiveSentences.h"
#include "live/LiveValues.h"
#include "services/HostServices.h"
#include "support/Printable.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"

#include <xsg/core/SoField.h>
#include <xsg/frames/SoFrameLog.h>

#include <QScopedValueRollback>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr std::uint32_t FirstPiece = 500; // children that a view needs at once
constexpr std::uint32_t LargestPiece = 16000;
constexpr std::size_t MostChildren = 4'000'000;
constexpr std::size_t MostObjects = 256; // that the properties of a node refer to
constexpr std::size_t MostShown = 64; // nodes whose values are followed, beside those that something watches

live::NodeInfo rootInfo(const live::Program& program)
{
    live::NodeInfo info;
    info.type = "Program";
    info.name = program.name;
    info.canHaveChildren = true;
    return info;
}

// Stands for a node where that would stand within itself.
live::NodeInfo repetitionOf(const SoNode& node)
{
    live::NodeInfo info;
    info.type = "Repetition";
    info.name = nodeText(node).toStdString();
    return info;
}

} // namespace

LiveScene::LiveScene(std::unique_ptr<LiveLink> link, HostServices& services)
    : m_services(services)
    , m_link(std::move(link))
    , m_edits(*this, services)
    , m_childEdits(*this, services)
    , m_additions(*this, services)
    , m_root(new LiveNode(*this, rootInfo(m_link->program())))
{
    m_unnumbered.insert(m_root.get());
    m_root->m_propertiesFetched = LiveNode::Fetched::Yes;
    m_foldsSoon.setSingleShot(true);
    connect(&m_foldsSoon, &QTimer::timeout, this, [this] {
        for (const live::NodeId id : std::exchange(m_folded, {})) {
            if (const auto found = m_nodes.find(id); found != m_nodes.end())
                m_folding.fold(*NodeRef(found->second), m_services.getSelectedNodes());
        }
    });
    m_link->setListener(this);
    m_link->showNotices(true);
    fetchChildren(*m_root);
}

LiveScene::~LiveScene()
{
    m_link->setListener(nullptr);
    m_waiting.clear();
    m_forFront.clear();
    for (const auto& [id, node] : m_nodes)
        node->m_scene = nullptr;
    for (LiveNode* node : m_unnumbered)
        node->m_scene = nullptr;
}

QString LiveScene::getName() const
{
    return printable(QString::fromStdString(m_link->program().name));
}

void LiveScene::apply(const std::function<void()>& act)
{
    const QScopedValueRollback<bool> applying(m_isApplying, true);
    m_services.history().unrecorded(act);
}

void LiveScene::takeBack(const std::function<void()>& act)
{
    const QScopedValueRollback<bool> applying(m_isApplying, true);
    act();
}

void LiveScene::setInFront(bool isInFront)
{
    m_isInFront = isInFront;
    if (!isInFront)
        return;
    for (const auto& act : std::exchange(m_forFront, {}))
        act();
}

void LiveScene::whenInFront(const std::function<void()>& act)
{
    if (m_isInFront)
        act();
    else
        m_forFront.push_back(act);
}

// --- Nodes

LiveScene::NodeRef LiveScene::nodeFor(const live::NodeInfo& info)
{
    const auto found = m_nodes.find(info.id);
    if (found != m_nodes.end()) {
        NodeRef node(found->second);
        apply([&] { node->update(info); });
        return node;
    }
    NodeRef node(new LiveNode(*this, info));
    if (info.id == 0)
        m_unnumbered.insert(node.get());
    else
        m_nodes.emplace(info.id, node.get());
    return node;
}

void LiveScene::forget(LiveNode& node)
{
    m_unnumbered.erase(&node);
    m_shown.remove(&node);
    const auto found = m_nodes.find(node.getId());
    if (found == m_nodes.end() || found->second != &node)
        return;
    m_nodes.erase(found);
    unwatch(node);
    if (node.m_isKept && m_state != State::Ended)
        m_link->forget(node.getId());
}

void LiveScene::watch(LiveNode& node, bool values)
{
    node.m_isWatched = true;
    m_link->watch(node.getId(), values);
}

void LiveScene::unwatch(LiveNode& node)
{
    if (std::exchange(node.m_isWatched, false) && m_state != State::Ended)
        m_link->unwatch(node.getId());
}

bool LiveScene::isShown(const LiveNode& node) const
{
    return std::find(m_shown.begin(), m_shown.end(), &node) != m_shown.end();
}

void LiveScene::noteKept(live::NodeId id)
{
    const auto found = m_nodes.find(id);
    if (found != m_nodes.end())
        found->second->m_isKept = true;
    else
        m_link->forget(id);
}

void LiveScene::watchLess(LiveNode& node)
{
    if (!isShown(node))
        unwatch(node);
}

// What was folded may be selected or unfolded again before the event loop runs.
void LiveScene::fold(LiveNode& node)
{
    m_folded.push_back(node.getId());
    m_foldsSoon.start(0);
}

// --- Children

void LiveScene::fetchChildren(LiveNode& node)
{
    if (node.m_childrenFetched != LiveNode::Fetched::No || m_state == State::Ended)
        return;
    node.m_childrenFetched = LiveNode::Fetched::Asked;
    node.m_fetched.clear(); // what was moved here before comes again
    const NodeRef kept(&node);
    if (&node == m_root.get())
        return m_link->roots([this](const std::vector<live::NodeInfo>& roots) { rootsCame(roots); });
    if (node.getId() == 0)
        return fetched(node);
    watch(node, isShown(node));
    if (node.m_propertiesFetched == LiveNode::Fetched::Yes && !node.m_hasObjects) {
        node.m_propertiesFetched = LiveNode::Fetched::Asked;
        node.m_onProperties.push_back([this, kept] { fetchPiece(kept, 0, false); });
        return fetchObjects(kept);
    }
    fetchProperties(node, [this, kept] { fetchPiece(kept, 0, false); });
}

void LiveScene::fetchChildrenAgain(LiveNode& node)
{
    if (node.m_childrenFetched == LiveNode::Fetched::Asked) {
        node.m_isAskedAgain = true;
        return;
    }
    if (node.m_childrenFetched == LiveNode::Fetched::No || m_state == State::Ended)
        return;
    node.m_childrenFetched = LiveNode::Fetched::Asked;
    node.m_fetched.clear();
    if (&node == m_root.get())
        m_link->roots([this](const std::vector<live::NodeInfo>& roots) { rootsCame(roots); });
    else
        fetchPiece(NodeRef(&node), 0, true);
}

void LiveScene::rootsCame(const std::vector<live::NodeInfo>& roots)
{
    m_root->m_fetched.clear();
    for (const live::NodeInfo& info : roots)
        m_root->m_fetched.emplace_back(nodeFor(info).get());
    setChildren(*m_root);
    fetched(*m_root);
}

void LiveScene::fetchPiece(const NodeRef& node, std::uint32_t first, bool isAgain)
{
    const std::uint32_t count = std::clamp(first, FirstPiece, LargestPiece);
    m_link->children(node->getId(), first, count, [=](const std::vector<live::NodeInfo>& piece) {
        pieceCame(node, first, isAgain, count, piece);
    });
}

void LiveScene::pieceCame(const NodeRef& node, std::uint32_t first, bool isAgain, std::uint32_t asked,
                          const std::vector<live::NodeInfo>& piece)
{
    const std::size_t taken = std::min<std::size_t>(piece.size(), asked);
    for (std::size_t i = 0; i < taken; ++i)
        node->m_fetched.emplace_back(nodeFor(piece[i]).get());
    const auto next = static_cast<std::uint32_t>(first + taken);
    const bool isLast = taken == 0 || (taken < asked && next >= node->m_info.childCount);
    if (isLast && isAgain && (node->m_isOutdated || m_childEdits.areWritten(*node)))
        return fetchEditedAgain(*node);
    if (isLast || !isAgain)
        setChildren(*node);
    if (isLast)
        return fetched(*node);
    if (next >= MostChildren) {
        emit told(tr("“%1” has more children than can be shown: those after the first %L2 are left out.")
                      .arg(nodeText(*node))
                      .arg(next));
        return fetched(*node);
    }
    goOnWaiting();
    fetchPiece(node, next, isAgain);
}

// What came is older than the edits, which have to be with the program before it is asked.
void LiveScene::fetchEditedAgain(LiveNode& node)
{
    const NodeRef kept(&node);
    m_childEdits.whenSettled([this, kept] {
        kept->m_childrenFetched = LiveNode::Fetched::Yes;
        LiveChildEdits::noteChildren(*kept, kept->getChildren());
        kept->m_isAskedAgain = kept->m_isOutdated = false;
        fetchChildrenAgain(*kept);
    });
}

void LiveScene::fetched(LiveNode& node)
{
    const NodeRef kept(&node);
    node.m_childrenFetched = LiveNode::Fetched::Yes;
    node.m_fetched.shrink_to_fit();
    apply([&] { node.touch(); });
    if (std::exchange(node.m_isAskedAgain, false))
        fetchChildrenAgain(node);
    goOnWaiting();
}

// Children at both ends that stay are not touched, with whatever is selected and unfolded there.
void LiveScene::setChildren(LiveNode& node)
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
    apply([&] {
        for (int i = before - tail - 1; i >= head; --i)
            node.removeChild(i);
        for (int i = head; i < now - tail; ++i)
            insert(node, *wanted[static_cast<std::size_t>(i)], i);
    });
    node.m_told = node.getChildren();
}

void LiveScene::insert(LiveNode& parent, SoNode& child, int index)
{
    if (!parent.insertChild(&child, index))
        parent.insertChild(nodeFor(repetitionOf(child)).get(), index);
}

void LiveScene::childrenWritten(LiveNode& node)
{
    if (m_isApplying || (node.m_told == node.getChildren() && !node.isRenamed()))
        return;
    node.m_areChildrenEdited = true;
    m_childEdits.childrenWritten(node);
}

// --- Properties

void LiveScene::fetchProperties(LiveNode& node, const std::function<void()>& then)
{
    if (node.m_propertiesFetched == LiveNode::Fetched::Yes)
        return then();
    node.m_onProperties.push_back(then);
    if (node.m_propertiesFetched == LiveNode::Fetched::Asked)
        return;
    node.m_propertiesFetched = LiveNode::Fetched::Asked;
    const NodeRef kept(&node);
    m_link->properties(node.getId(), [this, kept](const std::vector<live::PropertyInfo>& properties) {
        propertiesCame(kept, properties);
    });
}

void LiveScene::propertiesCame(const NodeRef& node, const std::vector<live::PropertyInfo>& properties)
{
    apply([&] { node->setProperties(properties); });
    fetchObjects(node);
}

// Answers come in the order of the questions, so that the last one ends it.
void LiveScene::fetchObjects(const NodeRef& node)
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
        m_link->value(node->getId(), name, [=](const std::optional<live::Value>& value) {
            const auto objects = value ? objectsIn(*value) : std::vector<live::NodeId>();
            ids->insert(ids->end(), objects.begin(), objects.end());
            if (isLast)
                objectsCame(node, *ids);
        });
    }
}

void LiveScene::objectsCame(const NodeRef& node, const std::vector<live::NodeId>& ids)
{
    const std::size_t count = std::min(ids.size(), MostObjects);
    if (count == 0)
        return propertiesFetched(*node);
    auto objects = std::make_shared<std::vector<SoRef<SoNode>>>();
    for (std::size_t i = 0; i < count; ++i) {
        m_link->node(ids[i], [=](const std::optional<live::NodeInfo>& info) {
            if (info && info->id != 0)
                objects->emplace_back(nodeFor(*info).get());
            if (i + 1 < count)
                return;
            node->m_objects = *objects;
            setChildren(*node);
            propertiesFetched(*node);
        });
    }
}

void LiveScene::propertiesFetched(LiveNode& node)
{
    const NodeRef kept(&node);
    node.m_propertiesFetched = LiveNode::Fetched::Yes;
    node.m_hasObjects = true;
    for (const auto& then : std::exchange(node.m_onProperties, {}))
        then();
}

// --- Values

void LiveScene::follow(const QList<SoFieldContainer*>& selected)
{
    live::NodeId last = 0;
    for (SoFieldContainer* container : selected) {
        auto* node = dynamic_cast<LiveNode*>(container);
        if (!node || node->getScene() != this)
            continue;
        last = node->getId();
        show(*node);
    }
    if (m_state != State::Ended && std::exchange(m_marked, last) != last && m_link->abilities().mark)
        m_link->mark(last);
}

void LiveScene::show(LiveNode& node)
{
    if (node.getId() == 0 || m_state == State::Ended || node.m_hasEnded)
        return;
    const bool isFirst = node.m_propertiesFetched != LiveNode::Fetched::Yes;
    if (!isFirst && !m_shown.empty() && m_shown.front() == &node)
        return;
    const NodeRef kept(&node);
    keepShown(node);
    fetchProperties(node, [this, kept, isFirst] {
        fetchValues(*kept, {});
        if (isFirst)
            emit fieldsCame(kept.get());
    });
}

void LiveScene::keepShown(LiveNode& node)
{
    m_shown.remove(&node);
    m_shown.push_front(&node);
    watch(node, true);
    for (auto at = m_shown.end(); m_shown.size() > MostShown && at != m_shown.begin();) {
        LiveNode* oldest = *--at;
        if (oldest == &node || oldest->hasSensors())
            continue;
        at = m_shown.erase(at);
        if (oldest->m_childrenFetched == LiveNode::Fetched::No)
            unwatch(*oldest);
        else
            watch(*oldest, false);
    }
}

void LiveScene::fetchValues(LiveNode& node, const std::function<void()>& then)
{
    const NodeRef kept(&node);
    std::vector<LiveProperty*> shown;
    for (const auto& property : node.m_properties) {
        if (property->field)
            shown.push_back(property.get());
    }
    for (LiveProperty* property : shown) {
        const bool isLast = property == shown.back();
        m_link->value(node.getId(), property->info.name, [=](const std::optional<live::Value>& value) {
            valueCame(*kept, *property, value);
            if (isLast && then)
                then();
        });
    }
    if (shown.empty() && then)
        then();
}

void LiveScene::valueCame(LiveNode& node, LiveProperty& property, const std::optional<live::Value>& value)
{
    if (value)
        return show(property, *value);
    property.remark =
        tr("“%1” has no “%2” any more.").arg(nodeText(node), toQString(property.field->getName()));
    emit remarked(property.field.get());
}

void LiveScene::show(LiveProperty& property, const live::Value& value)
{
    if (!property.field || property.isSent || property.isWritten)
        return; // an edit is on its way, whose answer comes
    apply([&] {
        if (showLiveValue(value, *property.field)) {
            property.known = value;
            property.field->setDefault(!property.isChanged);
            return;
        }
        property.remark = tr("“%1” came with a value that is none of its kind, and is not shown.")
                              .arg(toQString(property.field->getName()));
        emit remarked(property.field.get());
    });
}

void LiveScene::fieldWritten(LiveNode& node, SoField& field)
{
    if (m_isApplying)
        return;
    node.m_isEdited = true;
    m_edits.fieldWritten(node, field);
}

// --- Ways

void LiveScene::findPath(const std::vector<live::NodeId>& path, std::function<void(const SoPath&)> done)
{
    m_waiting.push_back({path, 0, {}, std::move(done)});
    goOnWaiting();
}

void LiveScene::whenUnfolded(LiveNode& node, const std::function<void()>& act)
{
    const NodeRef kept(&node);
    if (m_state == State::Ended || node.m_childrenFetched == LiveNode::Fetched::Yes)
        return act();
    m_waiting.push_back({{}, 0, {kept}, [act](const SoPath&) { act(); }});
    fetchChildren(node);
}

void LiveScene::whenShown(LiveNode& node, const std::function<void()>& act)
{
    const NodeRef kept(&node);
    if (m_state == State::Ended)
        return act();
    keepShown(node);
    fetchProperties(node, [this, kept, act] { fetchValues(*kept, act); });
}

void LiveScene::goOnWaiting()
{
    std::list<Waiting> waiting;
    waiting.swap(m_waiting);
    for (auto at = waiting.begin(); at != waiting.end();) {
        if (goOn(*at)) {
            SoPath path;
            path.append(m_root.get());
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
bool LiveScene::goOn(Waiting& waiting)
{
    while (true) {
        const NodeRef last = waiting.found.empty() ? m_root : waiting.found.back();
        const bool isComplete = m_state == State::Ended || last->m_childrenFetched == LiveNode::Fetched::Yes;
        if (waiting.next == waiting.ids.size())
            return !waiting.ids.empty() || isComplete;
        const auto found = m_nodes.find(waiting.ids[waiting.next]);
        const auto isParent = [&](const SoGroup* parent) { return parent == last.get(); };
        if (found == m_nodes.end() ||
            std::none_of(found->second->getParents().begin(), found->second->getParents().end(), isParent)) {
            if (isComplete)
                return true;
            fetchChildren(*last);
            return m_state == State::Ended;
        }
        waiting.found.emplace_back(found->second);
        ++waiting.next;
    }
}

// --- What the program says by itself

void LiveScene::rootsChanged()
{
    fetchChildrenAgain(*m_root);
}

void LiveScene::childrenChanged(live::NodeId id)
{
    const auto found = m_nodes.find(id);
    if (found == m_nodes.end())
        return;
    const NodeRef node(found->second);
    m_childEdits.flush();
    m_link->node(id, [this, node](const std::optional<live::NodeInfo>& info) {
        if (info)
            node->m_info.childCount = info->childCount;
        fetchChildrenAgain(*node);
    });
}

void LiveScene::nodeEnded(live::NodeId id)
{
    const auto found = m_nodes.find(id);
    if (found == m_nodes.end())
        return;
    const NodeRef node(found->second);
    node->m_hasEnded = true;
    m_nodes.erase(found);
    m_unnumbered.insert(node.get());
    m_shown.remove(node.get());
}

void LiveScene::valueChanged(live::NodeId id, const std::string& name, const live::Value& value)
{
    const auto found = m_nodes.find(id);
    LiveProperty* property = found == m_nodes.end() ? nullptr : found->second->findProperty(name);
    if (property && property->known != value)
        show(*property, value);
}

void LiveScene::pictureCame(const live::Picture& picture)
{
    const auto size = std::size_t(picture.width) * picture.height * 4;
    if (size == 0 || picture.pixels.size() != size)
        return;
    const QImage image(picture.pixels.data(), static_cast<int>(picture.width),
                       static_cast<int>(picture.height), QImage::Format_RGBX8888);
    emit pictureShown(image.copy());
}

void LiveScene::countersCame(const std::vector<double>& values)
{
    emit countersRead(values);
}

void LiveScene::noticeCame(const live::Notice& notice)
{
    UserNotifier::note(getName(), QString::fromStdString(notice.text));
}

void LiveScene::framesCame(const live::FrameTable& frames)
{
    logFrames(frames, SoFrameLog::getInstance());
}

// --- The end

void LiveScene::ended(const live::Sentence& reason)
{
    end(toText(reason));
}

void LiveScene::end(const QString& reason)
{
    if (m_state == State::Ended)
        return;
    m_state = State::Ended;
    m_end = printable(reason);
    m_edits.stop();
    m_childEdits.stop();
    emit stateChanged();
    goOnWaiting();
}

void LiveScene::detach()
{
    if (m_state == State::Ended)
        return;
    m_edits.flush(true);
    if (m_marked != 0)
        m_link->mark(0);
    m_link->setListener(nullptr);
    m_link->disconnect();
    end(tr("You have detached from “%1”.").arg(getName()));
}

void LiveScene::setSilent(bool isSilent)
{
    const State state = isSilent ? State::Silent : State::Attached;
    if (m_state == State::Ended || std::exchange(m_state, state) == state)
        return;
    emit stateChanged();
}

QString LiveScene::refusalOf(const LiveNode& node) const
{
    if (m_state == State::Ended)
        return tr("“%1” cannot be edited: “%2” is not attached any more.").arg(nodeText(node), getName());
    if (m_state == State::Silent)
        return tr("“%1” cannot be edited before “%2” answers again.").arg(nodeText(node), getName());
    if (node.m_hasEnded)
        return tr("“%1” cannot be edited: it does not exist in “%2” any more.")
            .arg(nodeText(node), getName());
    return {};
}

QString LiveScene::structureRefusalOf(const LiveNode& node) const
{
    const QString refusal = refusalOf(node);
    if (!refusal.isEmpty() || m_link->abilities().structure)
        return refusal;
    return tr("The nodes of “%1” can be neither added, moved nor removed, since the program does not offer "
              "that.")
        .arg(getName());
}

} // namespace scopix
