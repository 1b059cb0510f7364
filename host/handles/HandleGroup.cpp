// SPDX-License-Identifier: MIT
#include "handles/HandleGroup.h"

#include "handles/HandleEdit.h"
#include "handles/PathPlace.h"
#include "structure/SceneStates.h"
#include "text/NodeText.h"

#include <algorithm>

namespace scopix
{

namespace
{

std::unique_ptr<HandleTarget> targetOf(const HandleSubject& subject, const PathPlace& part)
{
    const auto place = findPlace(subject.node);
    if (!place)
        return nullptr;
    SoPath around;
    for (int i = 0; i + 1 < subject.part.getLength(); ++i)
        around.append(subject.part.getNode(i));
    const auto scope = part.box.isEmpty() ? findPlace(around) : part;
    return HandleTarget::make(subject.node.getTail(), place->toWorld,
                              scope ? scope->toWorld.transform(scope->box) : SbBox3f());
}

// In a sentence, what is locked of the selected nodes and of what would be edited; empty for nothing.
template <class Subjects>
QString lockOf(const SceneStates& states, const QList<SoPath>& selected, const Subjects& subjects)
{
    std::vector<const SoNode*> nodes;
    for (const SoPath& path : selected)
        nodes.push_back(path.getTail());
    for (const HandleSubject& subject : subjects)
        nodes.push_back(subject.node.isEmpty() ? subject.group.get() : subject.node.getTail());
    for (const SoNode* node : nodes) {
        const QString refusal = states.refusalOf(*node);
        if (!refusal.isEmpty())
            return refusal;
    }
    return {};
}

} // namespace

void HandleGroup::find(const QList<SoPath>& selected, HandleMode mode, const SceneStates* states)
{
    m_main = {};
    m_others.clear();
    m_mode = mode;
    m_selected = selected;
    const auto subjects = findHandleSubjects({m_selected.begin(), m_selected.end()});
    m_refusal = states ? lockOf(*states, m_selected, subjects) : QString();
    if (!m_refusal.isEmpty() || subjects.empty())
        return;
    std::vector<Member> all;
    for (const HandleSubject& subject : subjects)
        all.push_back(makeMember(subject));
    chooseMain(std::move(all));
}

// Without a target where it is not in sight.
HandleGroup::Member HandleGroup::makeMember(const HandleSubject& subject)
{
    Member made{subject, nullptr, nullptr, nullptr};
    const auto part = findPlace(subject.part);
    if (!part)
        return made;
    if (!subject.node.isEmpty()) {
        made.target = targetOf(subject, *part);
        return made;
    }
    const SbVec3f center = part->box.isEmpty() ? SbVec3f() : part->box.getCenter();
    made.added = std::make_shared<AddedTransform>(subject, center);
    made.target = HandleTarget::make(made.added->getTransform(), part->toWorld, {});
    return made;
}

// The last one that can be changed in this way, and with it all others that can, by the same amounts.
void HandleGroup::chooseMain(std::vector<Member> all)
{
    const auto can = [this](const Member& each) { return each.target && each.target->can(m_mode); };
    auto main = std::find_if(all.rbegin(), all.rend(), can);
    if (main == all.rend())
        main = all.rbegin();
    m_main = std::move(*main);
    for (Member& each : all) {
        if (m_main.target && can(each) && each.target->isFlat() == m_main.target->isFlat())
            m_others.push_back(std::move(each));
    }
}

QString HandleGroup::describe() const
{
    if (!m_refusal.isEmpty() || m_main.subject.isEmpty())
        return m_refusal;
    const QString part = getPartName();
    if (!m_main.target)
        return tr("There are no handles for “%1”: it is not in sight.").arg(part);
    const QString node = nodeText(*m_main.target->getNode());
    if (!m_main.target->can(m_mode))
        return m_mode == HandleMode::Move   ? tr("“%1” cannot be moved: it has no place.").arg(node)
               : m_mode == HandleMode::Turn ? tr("“%1” cannot be turned: it has no direction.").arg(node)
                                            : tr("“%1” cannot be scaled: it has no size.").arg(node);
    const std::size_t added = getAdded().size();
    if (!m_others.empty())
        return added == 0 ? tr("The handles change %1 nodes together.").arg(m_others.size() + 1)
                          : tr("The handles change %1 parts together; dragging puts a Transform above %2 "
                               "of them.")
                                .arg(m_others.size() + 1)
                                .arg(added);
    if (added > 0)
        return tr("Dragging a handle puts a Transform above “%1”.").arg(part);
    if (m_main.subject.node.getTail() != m_main.subject.part.getTail())
        return tr("The handles change “%1”, which moves “%2”.").arg(node, part);
    return {};
}

std::vector<std::shared_ptr<AddedTransform>> HandleGroup::getAdded() const
{
    std::vector<std::shared_ptr<AddedTransform>> added;
    for (const Member& each : m_others) {
        if (each.added)
            added.push_back(each.added);
    }
    if (m_main.added)
        added.push_back(m_main.added);
    return added;
}

QString HandleGroup::getPartName() const
{
    return nodeText(*m_main.subject.part.getTail());
}

QString HandleGroup::getName() const
{
    return m_others.empty() ? getPartName() : tr("%1 nodes").arg(m_others.size() + 1);
}

// The others join where they can be changed in the same way.
void HandleGroup::beginDrags(HandlePart part, bool ofWorld, const ViewSight& sight, const QPointF& place)
{
    const auto drag = [&](Member& each, HandlePart along) {
        each.drag = std::make_unique<HandleDrag>(*each.target, m_mode, along, ofWorld, sight, place);
    };
    drag(m_main, part);
    const HandlePart used = m_main.drag->getPart();
    for (Member& each : m_others) {
        each.drag.reset();
        if (usablePart(*each.target, m_mode, used) == used)
            drag(each, used);
    }
}

void HandleGroup::apply(const HandleDrag::Amounts& amounts) const
{
    m_main.drag->apply(amounts);
    for (const Member& each : m_others) {
        if (each.drag)
            each.drag->apply(amounts);
    }
}

void HandleGroup::addTo(HandleEdit& edit) const
{
    const auto add = [&](const Member& each) {
        if (each.added)
            edit.add(each.added);
        else
            edit.add(each.target->getNode(), each.target->getFields(m_mode));
    };
    std::for_each(m_others.begin(), m_others.end(), add);
    add(m_main);
}

void HandleGroup::endDrags()
{
    m_main.drag.reset();
    for (Member& each : m_others)
        each.drag.reset();
}

} // namespace scopix
