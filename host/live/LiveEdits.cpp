// SPDX-License-Identifier: MIT
#include "live/LiveEdits.h"

#include "live/LiveScene.h"
#include "live/LiveValues.h"
#include "services/HostServices.h"
#include "support/Printable.h"
#include "text/NodeText.h"

#include <xsg/core/SoField.h>

#include <QScopedValueRollback>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr std::size_t MostExact = std::size_t(1) << 20; // bytes of former values of a property

QString sentenceOf(const std::string& text)
{
    return printable(QString::fromStdString(text));
}

QString nameOf(const LiveProperty& property)
{
    return toQString(property.field->getName());
}

} // namespace

LiveEdits::LiveEdits(LiveScene& scene, HostServices& services)
    : m_scene(scene)
    , m_services(services)
{
    m_soon.setSingleShot(true);
    QObject::connect(&m_soon, &QTimer::timeout, [this] { flush(); });
}

// --- Values

void LiveEdits::fieldWritten(LiveNode& node, SoField& field)
{
    LiveProperty* property = node.findProperty(field);
    if (!property || property->isWritten)
        return;
    property->isWritten = true;
    m_written.push_back({NodeRef(&node), property});
    m_soon.start(0);
}

void LiveEdits::flush(bool all)
{
    m_soon.stop();
    sendValues(all);
    sendChildren();
}

void LiveEdits::sendValues(bool all)
{
    std::deque<Written> waiting;
    while (!m_written.empty() && (all || m_isOver || m_numAsked < MostAsked)) {
        const Written each = m_written.front();
        m_written.pop_front();
        if (m_isOver)
            refuse(each.node, *each.property);
        else if (each.property->isSent)
            waiting.push_back(each); // its answer comes first
        else
            send(each.node, *each.property);
    }
    m_written.insert(m_written.begin(), waiting.begin(), waiting.end());
}

// An answer came: the next ones may go.
void LiveEdits::goOn()
{
    --m_numAsked;
    if (!m_written.empty())
        m_soon.start(0);
}

// The program is gone, and what it had last stays: undoing changes nothing any more either.
void LiveEdits::refuse(const NodeRef& node, LiveProperty& property)
{
    property.isWritten = false;
    property.isSent = false;
    putBack(node, property, node->refusal());
}

void LiveEdits::send(const NodeRef& node, LiveProperty& property)
{
    property.isWritten = false;
    if (property.known.kind == live::ValueKind::None)
        return putBack(node, property, {}); // it holds nothing of the program yet
    const auto shown = shownBytes(property, *property.field);
    const auto exact = property.exact.find(shown);
    const auto value =
        exact == property.exact.end() ? liveValueOf(*property.field, property.known) : exact->second;
    if (value && *value == property.known)
        return remark(property, {});
    if (!value)
        return putBack(
            node, property,
            LiveScene::tr("“%1” takes whole numbers only, and is as it was.").arg(nameOf(property)));
    if (!canWriteBack(property.info) || !m_scene.getLink().abilities().write)
        return putBack(node, property,
                       LiveScene::tr("“%1” cannot be changed: “%2” only lets it be read.")
                           .arg(nameOf(property), m_scene.getName()));
    keepExact(property, property.known);
    property.isSent = true;
    LiveProperty* sent = &property;
    ++m_numAsked;
    m_scene.getLink().write(
        node->getId(), property.info.name, *value,
        [=, bytes = *value](const live::WriteResult& result) { answered(node, *sent, bytes, result); });
}

// What a field shows of a value, by which the value is found again.
std::vector<std::uint8_t> LiveEdits::shownBytes(const LiveProperty& property, const SoField& field)
{
    live::Value shape;
    shape.kind = property.known.kind;
    shape.list = property.known.list;
    const auto value = liveValueOf(field, shape);
    return value ? value->bytes : std::vector<std::uint8_t>();
}

// By way of a field of its own: the property's holds the edit already.
void LiveEdits::keepExact(LiveProperty& property, const live::Value& value)
{
    const std::unique_ptr<SoField> field = makeLiveField(property.info, nullptr);
    if (!field || !showLiveValue(value, *field))
        return;
    std::vector<std::uint8_t> shown = shownBytes(property, *field);
    if (shown == value.bytes)
        return; // nothing is lost
    if ((property.exact.size() + 1) * (2 * value.bytes.size() + 1) > MostExact)
        property.exact.clear();
    property.exact[std::move(shown)] = value;
}

void LiveEdits::answered(const NodeRef& node, LiveProperty& property, const live::Value& sent,
                         const live::WriteResult& result)
{
    property.isSent = false;
    goOn();
    const live::Value before = property.known;
    const bool isKnown = result.value.kind != live::ValueKind::None;
    if (isKnown)
        property.known = result.value;
    else if (result.taken)
        property.known = sent;
    if (result.taken) {
        m_changes.note(*node, property, before, property.known);
        property.isChanged = m_changes.isChanged(node->getId(), property.info.name);
        keepExact(property, property.known);
    }
    if (property.isWritten) // by a later edit, which decides
        return m_soon.start(0);
    if (!result.taken)
        return putBack(node, property,
                       LiveScene::tr("“%1” refused the value of “%2”: %3")
                           .arg(m_scene.getName(), nameOf(property), sentenceOf(result.refusal)));
    if (property.known == sent)
        return remark(property, {});
    showAsTaken(property, property.known);
    remark(property, LiveScene::tr("“%1” took another value for “%2” than was asked for.")
                         .arg(m_scene.getName(), nameOf(property)));
}

void LiveEdits::showAsTaken(LiveProperty& property, const live::Value& value)
{
    m_scene.show(property, value);
    m_services.history().completeLast(*property.field);
}

void LiveEdits::putBack(const NodeRef& node, LiveProperty& property, const QString& sentence)
{
    // The caller's may go meanwhile.
    const NodeRef kept(node); // NOLINT(performance-unnecessary-copy-initialization)
    if (property.known.kind != live::ValueKind::None)
        showAsTaken(property, property.known);
    remark(property, sentence);
}

void LiveEdits::remark(LiveProperty& property, const QString& sentence)
{
    if (!sentence.isEmpty())
        emit m_scene.told(sentence);
    if (property.remark == sentence)
        return;
    property.remark = sentence;
    emit m_scene.remarked(property.field.get());
}

// --- Children

void LiveEdits::childrenWritten(LiveNode& node)
{
    const NodeRef kept(&node);
    if (m_isOver || std::find(m_groups.begin(), m_groups.end(), kept) != m_groups.end())
        return;
    m_groups.push_back(kept);
    m_soon.start(0);
}

bool LiveEdits::areChildrenWritten(LiveNode& node) const
{
    return std::find(m_groups.begin(), m_groups.end(), NodeRef(&node)) != m_groups.end();
}

void LiveEdits::settleChildren(LiveNode& node)
{
    if (areChildrenWritten(node))
        flush();
}

void LiveEdits::sendChildren()
{
    const HistoryPlace place{m_services.history().getNumber(), m_services.undoStack().index()};
    const auto batch =
        std::make_shared<Batch>(Batch{place, std::exchange(m_groups, {}), std::exchange(m_made, {})});
    if (batch->groups.empty())
        return;
    m_latest = batch;
    std::vector<Child> removed;
    std::vector<Child> inserted;
    for (const NodeRef& group : batch->groups) {
        if (!group->isRenamed() && compareChildren(group, removed, inserted))
            continue;
        batch->refusal = LiveScene::tr("Only nodes of “%1” itself can stand in it, and their names are among "
                                       "their fields.")
                             .arg(m_scene.getName());
        return takeBack(batch);
    }
    batch->left = removed.size() + inserted.size();
    for (const Child& each : removed)
        sendChild(batch, each);
    for (const Child& each : inserted)
        sendChild(batch, each);
}

void LiveEdits::sendChild(const BatchPointer& batch, const Child& child)
{
    change(child, [=](const live::StructureResult& result) { structureAnswered(batch, child, result); });
}

void LiveEdits::change(const Child& child, const LiveLink::Answer<live::StructureResult>& answer)
{
    const auto index = static_cast<std::uint32_t>(child.index);
    const auto noted = [this, answer](const live::StructureResult& result) {
        if (result.done)
            m_scene.noteKept(result.node);
        answer(result);
    };
    if (child.isInserted)
        m_scene.getLink().insert(child.group->getId(), index, child.node, answer);
    else
        m_scene.getLink().remove(child.group->getId(), index, noted);
}

// What went, from the last one on, and what came, from the first one on; false where that cannot be in the
// program.
bool LiveEdits::compareChildren(const NodeRef& node, std::vector<Child>& removed,
                                std::vector<Child>& inserted)
{
    const std::vector<SoNode*>& before = node->m_told;
    const std::vector<SoNode*>& now = node->getChildren();
    const std::size_t common = std::min(before.size(), now.size());
    std::size_t head = 0;
    while (head < common && before[head] == now[head])
        ++head;
    std::size_t tail = 0;
    while (tail < common - head && before[before.size() - 1 - tail] == now[now.size() - 1 - tail])
        ++tail;
    const std::size_t objects = node->m_objects.size();
    if (node->getId() == 0 || head < objects)
        return false;
    for (std::size_t i = before.size() - tail; i > head; --i)
        removed.push_back({node, static_cast<int>(i - 1 - objects)});
    for (std::size_t i = head; i < now.size() - tail; ++i) {
        const auto* child = dynamic_cast<const LiveNode*>(now[i]);
        if (!child || child->getScene() != &m_scene || child->getId() == 0)
            return false;
        inserted.push_back({node, static_cast<int>(i - objects), child->getId(), true});
    }
    noteChildren(*node, now);
    return true;
}

// While they are being fetched again, what comes decides, and is asked for once more.
void LiveEdits::noteChildren(LiveNode& node, const std::vector<SoNode*>& children)
{
    node.m_told = children;
    if (node.m_childrenFetched == LiveNode::Fetched::Asked)
        node.m_isAskedAgain = node.m_isOutdated = true;
    else
        node.m_fetched.assign(node.m_told.begin() + static_cast<std::ptrdiff_t>(node.m_objects.size()),
                              node.m_told.end());
}

void LiveEdits::noteMade(LiveNode& parent, int index)
{
    m_made.push_back({NodeRef(&parent), index, 0, true});
}

void LiveEdits::structureAnswered(const BatchPointer& batch, Child child, const live::StructureResult& result)
{
    if (result.done) {
        child.node = result.node;
        batch->done.push_back(child);
    } else if (batch->refusal.isEmpty()) {
        batch->refusal = LiveScene::tr("“%1” refused to change the children of “%2”: %3")
                             .arg(m_scene.getName(), nodeText(*child.group), sentenceOf(result.refusal));
    }
    if (--batch->left == 0 && !batch->refusal.isEmpty())
        takeBack(batch);
}

// In the program only as long as nothing that was sent since builds on it.
void LiveEdits::takeBack(const BatchPointer& batch)
{
    if (m_isOver)
        return;
    for (auto at = batch->done.rbegin(); batch == m_latest.lock() && at != batch->done.rend(); ++at)
        change({at->group, at->index, at->node, !at->isInserted}, [](const auto&) {});
    emit m_scene.told(batch->refusal);
    m_scene.whenInFront([this, batch] {
        takeChildrenBack(batch->place);
        for (const NodeRef& each : batch->groups) {
            noteChildren(*each, each->getChildren());
            m_scene.fetchChildrenAgain(*each);
        }
    });
}

// The program never had it, so that undoing it is not told to the program either.
void LiveEdits::takeChildrenBack(const HistoryPlace& place)
{
    QUndoStack& stack = m_services.undoStack();
    m_scene.takeBack([&] {
        if (m_services.history().getNumber() == place.number && stack.index() == place.index &&
            stack.canUndo() && !stack.canRedo())
            stack.undo();
    });
}

// --- The end

void LiveEdits::stop()
{
    m_isOver = true;
    m_groups.clear();
    m_made.clear();
    if (!m_written.empty())
        m_soon.start(0);
}

} // namespace scopix
