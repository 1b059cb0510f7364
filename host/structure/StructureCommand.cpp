// SPDX-License-Identifier: MIT
#include "structure/StructureCommand.h"

#include "structure/StructureWatch.h"
#include "text/NodeText.h"

#include <QCoreApplication>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace scopix
{

namespace
{

using Kind = StructureChange::Kind;

StructureChange inverse(const StructureChange& change)
{
    StructureChange back = change;
    std::swap(back.before, back.after);
    std::swap(back.nameBefore, back.nameAfter);
    if (change.kind == Kind::Insert)
        back.kind = Kind::Remove;
    else if (change.kind == Kind::Remove)
        back.kind = Kind::Insert;
    return back;
}

bool insert(SoGroup& group, const StructureChange& change)
{
    return change.index <= group.getNumChildren() && group.insertChild(change.after.get(), change.index);
}

bool remove(SoGroup& group, const StructureChange& change)
{
    const bool isThere = group.getChild(change.index) == change.before.get();
    if (isThere)
        group.removeChild(change.index);
    return isThere;
}

bool replace(SoGroup& group, const StructureChange& change)
{
    return group.getChild(change.index) == change.before.get() &&
           group.replaceChild(change.index, change.after.get());
}

bool rename(SoNode& node, const StructureChange& change)
{
    const bool isSame = node.getName() == change.nameBefore;
    if (isSame)
        node.setName(change.nameAfter);
    return isSame;
}

void tell(StructureWatch& watch, const StructureChange& change)
{
    if (change.kind == Kind::Rename)
        watch.aboutToRename(*change.node);
    else
        watch.aboutToChangeChildren(*change.node->asGroup(), change.index,
                                    change.kind == Kind::Insert ? 0 : 1);
}

// False, and nothing is changed, where the scene is another one by now.
bool apply(const StructureChange& change)
{
    if (StructureWatch* watch = StructureWatch::getActive())
        tell(*watch, change);
    if (change.kind == Kind::Rename)
        return rename(*change.node, change);
    SoGroup& group = *change.node->asGroup();
    switch (change.kind) {
    case Kind::Insert:
        return insert(group, change);
    case Kind::Remove:
        return remove(group, change);
    default:
        return replace(group, change);
    }
}

[[noreturn]] void refuse(const StructureChange& change)
{
    throw std::runtime_error(QCoreApplication::translate("Structure", "“%1” has been changed meanwhile.")
                                 .arg(nodeText(*change.node))
                                 .toLocal8Bit()
                                 .constData());
}

} // namespace

StructureCommand::StructureCommand(std::vector<StructureChange> changes)
    : m_changes(std::move(changes))
{
}

StructureCommand::~StructureCommand() = default;

void StructureCommand::redo()
{
    for (auto at = m_changes.begin(); at != m_changes.end(); ++at) {
        if (apply(*at))
            continue;
        std::for_each(std::make_reverse_iterator(at), m_changes.rend(),
                      [](const StructureChange& done) { apply(inverse(done)); });
        refuse(*at);
    }
}

void StructureCommand::undo()
{
    for (auto at = m_changes.rbegin(); at != m_changes.rend(); ++at) {
        if (apply(inverse(*at)))
            continue;
        std::for_each(at.base(), m_changes.end(), [](const StructureChange& undone) { apply(undone); });
        refuse(*at);
    }
}

std::vector<SoFieldContainer*> StructureCommand::editedContainers() const
{
    std::vector<SoFieldContainer*> all;
    for (const StructureChange& change : m_changes) {
        for (SoNode* node : {change.node.get(), change.before.get(), change.after.get()}) {
            if (node)
                all.push_back(node);
        }
    }
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

} // namespace scopix
