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

constexpr std::size_t MostShown = 64; // nodes whose values are followed, beside those that something watches

live::NodeInfo rootInfo(const live::Program& program)
{
    live::NodeInfo info;
    info.type = "Program";
    info.name = program.name;
    info.canHaveChildren = true;
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
    m_fetching.fetchChildren(*m_root);
}

LiveScene::~LiveScene()
{
    m_link->setListener(nullptr);
    m_ways.clear();
    m_forFront.clear();
    // Those who wait for a node's answer keep it, and may keep others.
    std::vector<std::function<void()>> dropped;
    const auto leave = [&dropped](LiveNode& node) {
        node.m_scene = nullptr;
        dropped.insert(dropped.end(), node.m_onProperties.begin(), node.m_onProperties.end());
        node.m_onProperties.clear();
    };
    for (const auto& [id, node] : m_nodes)
        leave(*node);
    for (LiveNode* node : m_unnumbered)
        leave(*node);
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

LiveNode* LiveScene::findNode(live::NodeId id) const
{
    const auto found = m_nodes.find(id);
    return found == m_nodes.end() ? nullptr : found->second;
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

void LiveScene::watchChildren(LiveNode& node)
{
    watch(node, isShown(node));
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

void LiveScene::childrenWritten(LiveNode& node)
{
    if (m_isApplying || (node.m_told == node.getChildren() && !node.isRenamed()))
        return;
    node.m_areChildrenEdited = true;
    m_childEdits.childrenWritten(node);
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
    m_fetching.fetchProperties(node, [this, kept, isFirst] {
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

void LiveScene::whenShown(LiveNode& node, const std::function<void()>& act)
{
    const NodeRef kept(&node);
    if (m_state == State::Ended)
        return act();
    keepShown(node);
    m_fetching.fetchProperties(node, [this, kept, act] { fetchValues(*kept, act); });
}

// --- What the program says by itself

void LiveScene::rootsChanged()
{
    m_fetching.fetchChildrenAgain(*m_root);
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
        m_fetching.fetchChildrenAgain(*node);
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
    UserNotifier::note(getName(), toText(notice.text));
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
    m_ways.goOn();
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
