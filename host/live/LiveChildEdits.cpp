// SPDX-License-Identifier: MIT
#include "live/LiveChildEdits.h"

#include "live/LiveScene.h"
#include "live/LiveSentences.h"
#include "services/HostServices.h"
#include "text/NodeText.h"

#include <algorithm>

namespace scopix
{

LiveChildEdits::LiveChildEdits(LiveScene& scene, HostServices& services)
    : m_scene(scene)
    , m_services(services)
{
    m_soon.setSingleShot(true);
    QObject::connect(&m_soon, &QTimer::timeout, [this] { m_scene.getEdits().flush(); });
}

void LiveChildEdits::childrenWritten(LiveNode& node)
{
    if (m_isOver)
        return;
    noteStep();
    if (!areWritten(node))
        m_groups.emplace_back(&node);
    m_soon.start(0);
}

bool LiveChildEdits::areWritten(LiveNode& node) const
{
    return std::find(m_groups.begin(), m_groups.end(), NodeRef(&node)) != m_groups.end();
}

// Steps may be undone and others made while an edit waits: what is left of it begins at the lowest place.
void LiveChildEdits::noteStep()
{
    const HistoryPlace here{m_services.history().getNumber(), m_services.undoStack().index()};
    if (!m_first || here.index < m_first->index)
        m_first = here;
}

void LiveChildEdits::noteMade(LiveNode& parent, int index)
{
    m_made.push_back({NodeRef(&parent), index, 0, true});
}

// While they are being fetched again, what comes decides, and is asked for once more.
void LiveChildEdits::noteChildren(LiveNode& node, const std::vector<SoNode*>& children)
{
    node.m_told = children;
    if (node.m_childrenFetched == LiveNode::Fetched::Asked)
        node.m_isAskedAgain = node.m_isOutdated = true;
    else
        node.m_fetched.assign(node.m_told.begin() + static_cast<std::ptrdiff_t>(node.m_objects.size()),
                              node.m_told.end());
}

// --- One after the other

bool LiveChildEdits::isSettled() const
{
    return m_isOver || (!m_isHeld && !m_sent && m_groups.empty());
}

void LiveChildEdits::whenSettled(const std::function<void()>& act)
{
    m_waiting.push_back(act);
    settle();
}

void LiveChildEdits::release()
{
    m_isHeld = false;
    settle();
}

void LiveChildEdits::settle()
{
    flush();
    while (!m_waiting.empty() && isSettled()) {
        const auto act = std::move(m_waiting.front());
        m_waiting.pop_front();
        act();
    }
}

void LiveChildEdits::flush(bool all)
{
    if (!all && (m_isHeld || m_sent))
        return;
    m_soon.stop();
    const auto first = std::exchange(m_first, {});
    auto made = std::exchange(m_made, {});
    if (m_groups.empty() || !first)
        return;
    m_sent = std::make_shared<Batch>(
        Batch{*first, m_services.undoStack().index(), std::exchange(m_groups, {}), std::move(made)});
    send(BatchPointer(m_sent));
}

void LiveChildEdits::send(const BatchPointer& batch)
{
    std::vector<Child> removed;
    std::vector<Child> inserted;
    for (const NodeRef& group : batch->groups) {
        if (!group->isRenamed() && compare(group, removed, inserted))
            continue;
        batch->refusal = LiveScene::tr("Only nodes of “%1” itself can stand in it, and their names are among "
                                       "their fields.")
                             .arg(m_scene.getName());
        return takeBack(batch);
    }
    batch->left = removed.size() + inserted.size();
    if (batch->left == 0)
        return end(batch);
    for (const Child& each : removed)
        sendChild(batch, each);
    for (const Child& each : inserted)
        sendChild(batch, each);
}

void LiveChildEdits::sendChild(const BatchPointer& batch, const Child& child)
{
    change(child, [=](const live::StructureResult& result) { answered(batch, child, result); });
}

void LiveChildEdits::change(const Child& child, const LiveLink::Answer<live::StructureResult>& answer)
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
bool LiveChildEdits::compare(const NodeRef& node, std::vector<Child>& removed, std::vector<Child>& inserted)
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

void LiveChildEdits::answered(const BatchPointer& batch, Child child, const live::StructureResult& result)
{
    if (result.done) {
        child.node = result.node;
        batch->done.push_back(child);
    } else if (batch->refusal.isEmpty()) {
        batch->refusal = LiveScene::tr("“%1” refused to change the children of “%2”: %3")
                             .arg(m_scene.getName(), nodeText(*child.group), toText(result.refusal));
    }
    if (--batch->left > 0)
        return;
    if (batch->refusal.isEmpty())
        end(batch);
    else
        takeBack(batch);
}

void LiveChildEdits::end(const BatchPointer& batch)
{
    if (m_sent == batch)
        m_sent.reset();
    settle();
}

// --- What is refused

void LiveChildEdits::takeBack(const BatchPointer& batch)
{
    if (m_isOver)
        return;
    for (auto at = batch->done.rbegin(); at != batch->done.rend(); ++at)
        change({at->group, at->index, at->node, !at->isInserted}, [](const auto&) {});
    emit m_scene.told(batch->refusal);
    m_scene.whenInFront([this, batch] {
        undo(*batch);
        end(batch);
    });
}

// Values that the program took meanwhile go to it again; of children, it has none of what is undone.
void LiveChildEdits::undo(const Batch& batch)
{
    QUndoStack& stack = m_services.undoStack();
    if (m_services.history().getNumber() == batch.before.number) {
        if (stack.index() > batch.after)
            emit m_scene.told(LiveScene::tr("What was done after that is undone too; it can be redone."));
        for (int left = stack.index() - batch.before.index; left > 0 && stack.canUndo(); --left)
            stack.undo();
    }
    std::vector<NodeRef> groups = std::exchange(m_groups, {});
    groups.insert(groups.end(), batch.groups.begin(), batch.groups.end());
    m_made.clear();
    m_first.reset();
    for (const NodeRef& each : groups) {
        noteChildren(*each, each->getChildren());
        m_scene.getFetching().fetchChildrenAgain(*each);
    }
}

void LiveChildEdits::stop()
{
    m_isOver = true;
    m_groups.clear();
    m_made.clear();
    m_sent.reset();
    settle();
}

} // namespace scopix
