// SPDX-License-Identifier: MIT
#include "structure/StructureActs.h"

#include "structure/MirroredNode.h"
#include "structure/StructurePlan.h"
#include "text/NodeText.h"

#include <xsg/files/BranchCopy.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/support/WorkPieces.h>

#include <QCoreApplication>

#include <algorithm>
#include <map>
#include <unordered_set>

namespace scopix::structure
{

namespace
{

QString tr(const char* text, int number = -1)
{
    return QCoreApplication::translate("Structure", text, nullptr, number);
}

Act refused(const QString& sentence)
{
    Act act;
    act.refusal = sentence;
    return act;
}

Act refusedRoot(const Paths& paths)
{
    return refused(tr("“%1” is the root of the scene, and has to stay where it is.")
                       .arg(nodeText(*paths.front().getTail())));
}

Act nothingSelected()
{
    return refused(tr("No node is selected: select one in the tree or in the view first."));
}

struct DeedTexts {
    const char* one;
    const char* several;
};

// Whole sentences: other languages have the verb elsewhere.
const DeedTexts& textsOf(Deed deed)
{
    static const std::map<Deed, DeedTexts> texts{
        {Deed::Delete,
         {QT_TRANSLATE_NOOP("Structure", "Delete “%1”"), QT_TRANSLATE_NOOP("Structure", "Delete %1 Nodes")}},
        {Deed::Cut,
         {QT_TRANSLATE_NOOP("Structure", "Cut “%1”"), QT_TRANSLATE_NOOP("Structure", "Cut %1 Nodes")}},
        {Deed::Duplicate,
         {QT_TRANSLATE_NOOP("Structure", "Duplicate “%1”"),
          QT_TRANSLATE_NOOP("Structure", "Duplicate %1 Nodes")}},
        {Deed::Paste,
         {QT_TRANSLATE_NOOP("Structure", "Paste “%1”"), QT_TRANSLATE_NOOP("Structure", "Paste %1 Nodes")}},
        {Deed::Ungroup,
         {QT_TRANSLATE_NOOP("Structure", "Ungroup “%1”"),
          QT_TRANSLATE_NOOP("Structure", "Ungroup %1 Nodes")}},
        {Deed::Group,
         {QT_TRANSLATE_NOOP("Structure", "Group “%1”"), QT_TRANSLATE_NOOP("Structure", "Group %1 Nodes")}},
        {Deed::MakeUnique,
         {QT_TRANSLATE_NOOP("Structure", "Make Unique “%1”"),
          QT_TRANSLATE_NOOP("Structure", "Make Unique %1 Nodes")}},
        {Deed::Move,
         {QT_TRANSLATE_NOOP("Structure", "Move “%1”"), QT_TRANSLATE_NOOP("Structure", "Move %1 Nodes")}},
        {Deed::Copy,
         {QT_TRANSLATE_NOOP("Structure", "Copy “%1”"), QT_TRANSLATE_NOOP("Structure", "Copy %1 Nodes")}},
        {Deed::Share,
         {QT_TRANSLATE_NOOP("Structure", "Share “%1”"), QT_TRANSLATE_NOOP("Structure", "Share %1 Nodes")}},
    };
    return texts.at(deed);
}

QString nameOfPutting(const SoNode& above, const Paths& paths)
{
    const QString type = typeText(above.getTypeId());
    return paths.size() == 1 ? tr("Put %1 Above “%2”").arg(type, nodeText(*paths.front().getTail()))
                             : tr("Put %1 Above %2 Nodes").arg(type, QString::number(paths.size()));
}

Act done(StructurePlan& plan, const QString& name, Paths selection)
{
    Act act;
    act.command = plan.takeCommand();
    act.name = name;
    act.selection = std::move(selection);
    return act;
}

// What an act on several nodes works on; empty with the reason in `act` where it cannot.
Paths targets(const Paths& paths, Act& act)
{
    const Paths found = paths.isEmpty() ? paths : topmost(paths, paths.front().getHead());
    if (found.isEmpty())
        act = nothingSelected();
    return found;
}

Paths childTargets(const Paths& paths, Act& act)
{
    const Paths found = targets(paths, act);
    if (found.isEmpty() || found.front().getLength() > 1)
        return found;
    act = refusedRoot(found);
    return {};
}

bool takesChildren(SoNode& node)
{
    const MirroredNode* mirrored = MirroredNode::of(&node);
    return mirrored ? mirrored->canHaveChildren() : node.asGroup() != nullptr;
}

// Of another program, places that are not unfolded count too.
bool isShared(const SoPath& path)
{
    const MirroredNode* mirrored = MirroredNode::of(path.getTail());
    return (mirrored && mirrored->isShared()) || countPlaces(path.getTail(), path.getHead(), 2) > 1;
}

// Without what only the group itself refers to.
StructurePlan::Children heldBy(const StructurePlan& plan, SoGroup& group)
{
    const MirroredNode* mirrored = MirroredNode::of(&group);
    const auto& all = plan.childrenOf(group);
    return {all.begin() + (mirrored ? mirrored->countObjects() : 0), all.end()};
}

Act refusedAbove(SoNode& node)
{
    return refused(tr("Nothing was put above, since “%1” takes no children; choose a type that does.")
                       .arg(typeText(node.getTypeId())));
}

// Copies one branch of several after the other.
class Copying
{
public:
    Copying(const Paths& all, const GoOn& goOn)
        : m_count(all.size())
        , m_goOn(goOn)
    {
    }
    SoRef<SoNode> copy(SoNode* branch)
    {
        return xsg::copyBranch(branch, xsg::partOf(m_goOn, m_index++, m_count));
    }

private:
    const int m_count;
    const GoOn& m_goOn;
    int m_index = 0;
};

// A place that two paths lead to, since a group above is shared, is acted on once.
class Once
{
public:
    bool operator()(const SoPath& path) { return m_places.insert({parentAt(path), path.getTail()}).second; }

private:
    struct Hash {
        std::size_t operator()(const std::pair<const SoGroup*, const SoNode*>& place) const
        {
            return std::hash<const void*>()(place.first) * 31 + std::hash<const void*>()(place.second);
        }
    };
    std::unordered_set<std::pair<const SoGroup*, const SoNode*>, Hash> m_places;
};

// What is selected when these are gone: what follows, or else what is before them, or what held them.
SoPath neighbour(const Paths& paths)
{
    const SoPath parent = parentPath(paths.back());
    const auto& children = parent.getTail()->asGroup()->getChildren();
    std::unordered_set<const SoNode*> gone;
    for (const SoPath& path : paths) {
        if (parentAt(path) == parent.getTail())
            gone.insert(path.getTail());
    }
    const auto stays = [&](const SoNode* child) { return gone.count(child) == 0; };
    const auto last = std::find(children.begin(), children.end(), paths.back().getTail());
    const auto next = std::find_if(last, children.end(), stays);
    if (next != children.end())
        return extended(parent, *next);
    const auto before = std::find_if(std::make_reverse_iterator(last), children.rend(), stays);
    return before == children.rend() ? parent : extended(parent, *before);
}

// Removes them all from where they stand, in groups of siblings from the last to the first, so that the
// places of those that are still to come stay.
void removeAll(StructurePlan& plan, const Paths& paths)
{
    Once once;
    for (int i = paths.size() - 1; i >= 0; --i) {
        SoGroup* parent = parentAt(paths[i]);
        if (once(paths[i]))
            plan.remove(*parent, plan.findChild(*parent, paths[i].getTail()));
    }
}

// The root itself stays, since the document, views and the application around know it.
Act insertAboveRoot(const SoPath& path, SoNode* node, const QString& name)
{
    SoGroup* root = path.getTail()->asGroup();
    if (!root)
        return refusedRoot({path});
    StructurePlan plan;
    if (SoGroup* above = node->asGroup()) {
        const StructurePlan::Children children = root->getChildren();
        for (int i = static_cast<int>(children.size()) - 1; i >= 0; --i)
            plan.remove(*root, i);
        for (SoNode* child : children)
            plan.append(*above, child);
    }
    plan.insert(*root, 0, node);
    return done(plan, name, {extended(path, node)});
}

// Returns the path to the new node, which is empty where it cannot be.
SoPath planAbove(StructurePlan& plan, const SoPath& path, SoNode* node, const MakeNode& makeSeparator)
{
    SoNode* target = path.getTail();
    SoGroup& parent = *parentAt(path);
    const int place = plan.findChild(parent, target);
    SoGroup* above = takesChildren(*node) ? node->asGroup() : nullptr;
    const SoPath to = parentPath(path);
    if (!above && !target->asGroup() && !target->asShape()) {
        plan.insert(parent, place, node);
        return extended(to, node);
    }
    if (above) {
        plan.append(*above, target);
        plan.replace(parent, place, above);
        return extended(to, above);
    }
    const SoRef<SoNode> separator = makeSeparator();
    if (!separator || !takesChildren(*separator))
        return {};
    plan.append(*separator->asGroup(), node);
    plan.append(*separator->asGroup(), target);
    plan.replace(parent, place, separator.get());
    return extended(extended(to, separator.get()), node);
}

Deed deedOf(Transfer how)
{
    return how == Transfer::Move ? Deed::Move : how == Transfer::Copy ? Deed::Copy : Deed::Share;
}

// Loops would never end.
const SoNode* firstThatHolds(const Paths& paths, const SoNode* group)
{
    const auto holds = [group](const SoPath& path) { return isBelow(group, path.getTail()); };
    const auto found = std::find_if(paths.begin(), paths.end(), holds);
    return found == paths.end() ? nullptr : found->getTail();
}

} // namespace

MakeNode makeOfType(SoType type)
{
    return [type] { return SoRef<SoNode>(static_cast<SoNode*>(type.createInstance())); };
}

QString nameOf(Deed deed, const Paths& paths)
{
    const DeedTexts& texts = textsOf(deed);
    return paths.size() == 1 ? tr(texts.one).arg(nodeText(*paths.front().getTail()))
                             : tr(texts.several).arg(paths.size());
}

Paths actedOn(const Paths& paths)
{
    Act act;
    Paths all;
    Once once;
    for (const SoPath& path : targets(paths, act)) {
        if (once(path))
            all += path;
    }
    return all;
}

Act remove(const Paths& paths, Deed deed)
{
    Act act;
    const Paths all = childTargets(paths, act);
    if (all.isEmpty())
        return act;
    StructurePlan plan;
    removeAll(plan, all);
    return done(plan, nameOf(deed, all), {neighbour(all)});
}

Act duplicate(const Paths& paths, const GoOn& goOn)
{
    Act act;
    const Paths all = childTargets(paths, act);
    StructurePlan plan;
    Paths copies;
    Once once;
    Copying copying(all, goOn);
    for (const SoPath& path : all) {
        if (!once(path))
            continue;
        const SoRef<SoNode> copy = copying.copy(path.getTail());
        if (!copy)
            return refused(
                tr("“%1” cannot be duplicated: something in it is of a kind that cannot be copied.")
                    .arg(nodeText(*path.getTail())));
        SoGroup& parent = *parentAt(path);
        plan.insert(parent, plan.findChild(parent, path.getTail()) + 1, copy.get());
        copies += extended(parentPath(path), copy.get());
    }
    return all.isEmpty() ? std::move(act) : done(plan, nameOf(Deed::Duplicate, all), copies);
}

Act ungroup(const Paths& paths)
{
    Act act;
    const Paths all = childTargets(paths, act);
    StructurePlan plan;
    Paths children;
    Once once;
    for (const SoPath& path : all) {
        SoGroup* group = path.getTail()->asGroup();
        if (!takesChildren(*path.getTail()))
            return refused(tr("“%1” is no group, and cannot be ungrouped.").arg(nodeText(*path.getTail())));
        if (!once(path))
            continue;
        SoGroup& parent = *parentAt(path);
        int place = plan.findChild(parent, group);
        plan.remove(parent, place);
        for (SoNode* child : heldBy(plan, *group)) {
            plan.insert(parent, place++, child);
            children += extended(parentPath(path), child);
        }
    }
    return all.isEmpty() ? std::move(act) : done(plan, nameOf(Deed::Ungroup, all), children);
}

Act group(const Paths& paths, const MakeNode& makeGroup)
{
    Act act;
    const Paths all = childTargets(paths, act);
    if (all.isEmpty())
        return act;
    const SoRef<SoNode> made = makeGroup();
    if (!takesChildren(*made))
        return refusedAbove(*made);
    SoGroup& into = *made->asGroup();
    const SoPath& first = all.front();
    SoGroup& parent = *parentAt(first);
    if (const SoNode* above = firstThatHolds(all, &parent))
        return refused(tr("“%1” cannot be put below itself.").arg(nodeText(*above)));
    StructurePlan plan;
    const int place = plan.findChild(parent, first.getTail());
    removeAll(plan, all);
    Once once;
    for (const SoPath& path : all) {
        if (once(path))
            plan.append(into, path.getTail());
    }
    plan.insert(parent, std::min(place, static_cast<int>(plan.childrenOf(parent).size())), &into);
    return done(plan, nameOf(Deed::Group, all), {extended(parentPath(first), &into)});
}

Act insertAbove(const Paths& paths, const MakeNode& makeNode)
{
    return insertAbove(paths, makeNode, makeOfType(SoSeparator::getClassTypeId()));
}

Act insertAbove(const Paths& paths, const MakeNode& makeNode, const MakeNode& makeSeparator)
{
    Act act;
    const Paths all = targets(paths, act);
    StructurePlan plan;
    Paths inserted;
    Once once;
    QString name;
    for (const SoPath& path : all) {
        const SoRef<SoNode> node = makeNode();
        name = nameOfPutting(*node, all);
        if (path.getLength() == 1)
            return insertAboveRoot(path, node.get(), name);
        if (!once(path))
            continue;
        inserted += planAbove(plan, path, node.get(), makeSeparator);
        if (inserted.back().isEmpty())
            return refusedAbove(*node);
    }
    return all.isEmpty() ? std::move(act) : done(plan, name, inserted);
}

Act insertAbove(const SoPath& path, SoNode* node)
{
    const SoRef<SoNode> kept(node);
    return insertAbove(Paths{path}, [&kept] { return kept; });
}

Act makeUnique(const Paths& paths, const GoOn& goOn)
{
    Copying copying(actedOn(paths), goOn);
    return makeUnique(paths, [&copying](const SoPath& path) { return copying.copy(path.getTail()); });
}

Act makeUnique(const Paths& paths, const CopyOf& copyOf)
{
    Act act;
    const Paths all = childTargets(paths, act);
    StructurePlan plan;
    Paths copies;
    Once once;
    for (const SoPath& path : all) {
        SoNode* node = path.getTail();
        if (!isShared(path))
            return refused(tr("“%1” stands in one place only, and is its own already.").arg(nodeText(*node)));
        if (!once(path))
            continue;
        const SoRef<SoNode> copy = copyOf(path);
        if (!copy)
            return refused(
                tr("“%1” cannot be made unique: something in it is of a kind that cannot be copied.")
                    .arg(nodeText(*node)));
        SoGroup& parent = *parentAt(path);
        plan.replace(parent, plan.findChild(parent, node), copy.get());
        copies += extended(parentPath(path), copy.get());
    }
    return all.isEmpty() ? std::move(act) : done(plan, nameOf(Deed::MakeUnique, all), copies);
}

Act add(const SoPath& path, const std::vector<SoRef<SoNode>>& nodes, const QString& name)
{
    if (path.isEmpty() || nodes.empty())
        return nothingSelected();
    SoGroup* group = path.getTail()->asGroup();
    const SoPath into = group ? path : parentPath(path);
    group = group ? group : parentAt(path);
    if (!group)
        return refused(tr("Nothing can be put into “%1”, which is no group.").arg(nodeText(*path.getTail())));
    StructurePlan plan;
    int place = into.getLength() == path.getLength() ? group->getNumChildren()
                                                     : plan.findChild(*group, path.getTail()) + 1;
    Paths added;
    for (const auto& node : nodes) {
        if (isBelow(group, node.get()))
            return refused(tr("“%1” cannot be put below itself.").arg(nodeText(*node)));
        plan.insert(*group, place++, node.get());
        added += extended(into, node.get());
    }
    return done(plan, name, added);
}

Act rename(const SoPath& path, const QString& name)
{
    if (path.isEmpty())
        return nothingSelected();
    const QString wanted = name.simplified();
    const SbName latin = toName(wanted);
    if (toQString(latin) != wanted)
        return refused(tr("A node cannot be called “%1”: names can have the letters of western European "
                          "languages only.")
                           .arg(wanted));
    SoNode& node = *path.getTail();
    StructurePlan plan;
    if (node.getName() != latin)
        plan.rename(node, latin);
    return plan.isEmpty() ? Act() : done(plan, tr("Rename “%1” to “%2”").arg(nodeText(node), wanted), {path});
}

Act transfer(const Paths& paths, const SoPath& groupPath, int index, Transfer how, const GoOn& goOn)
{
    Act act;
    const Paths all = how == Transfer::Move ? childTargets(paths, act) : targets(paths, act);
    if (all.isEmpty())
        return act;
    SoNode* to = groupPath.getTail();
    SoGroup* group = to ? to->asGroup() : nullptr;
    if (!group)
        return refused(to ? tr("Nothing can be put into “%1”, which is no group.").arg(nodeText(*to))
                          : nothingSelected().refusal);
    const SoNode* loops = how == Transfer::Copy ? nullptr : firstThatHolds(all, group);
    if (loops)
        return refused(tr("“%1” cannot be put below itself.").arg(nodeText(*loops)));

    StructurePlan plan;
    int place = index < 0 ? group->getNumChildren() : std::min(index, group->getNumChildren());
    Once once;
    Copying copying(all, goOn);
    std::vector<SoRef<SoNode>> moved;
    for (const SoPath& path : all) {
        if (how != Transfer::Copy && !once(path))
            continue;
        moved.push_back(how == Transfer::Copy ? copying.copy(path.getTail()) : path.getTail());
        if (!moved.back())
            return refused(tr("“%1” cannot be copied: something in it is of a kind that cannot be copied.")
                               .arg(nodeText(*path.getTail())));
        // What goes from before the place brings it forward.
        if (how == Transfer::Move && parentAt(path) == group && group->findChild(path.getTail()) < place)
            act.selection += path;
    }
    if (how == Transfer::Move) {
        place -= act.selection.size();
        removeAll(plan, all);
    }
    Paths selection;
    for (const auto& node : moved) {
        plan.insert(*group, place++, node.get());
        selection += extended(groupPath, node.get());
    }
    return done(plan, nameOf(deedOf(how), all), selection);
}

Act reorder(const Paths& paths, int by)
{
    Act act;
    const Paths all = childTargets(paths, act);
    StructurePlan plan;
    Once once;
    std::unordered_set<const SoNode*> stuck;
    for (int i = 0; i < all.size(); ++i) {
        const SoPath& path = all[by < 0 ? i : all.size() - 1 - i];
        if (!once(path))
            continue;
        SoGroup& parent = *parentAt(path);
        const auto& children = plan.childrenOf(parent);
        const int place = plan.findChild(parent, path.getTail());
        const int to = place + by;
        if (to < 0 || to >= static_cast<int>(children.size()) ||
            stuck.count(children[static_cast<std::size_t>(to)]) > 0) {
            stuck.insert(path.getTail());
            continue;
        }
        plan.remove(parent, place);
        plan.insert(parent, to, path.getTail());
    }
    if (all.isEmpty() || !plan.isEmpty())
        return all.isEmpty() ? std::move(act) : done(plan, nameOf(Deed::Move, all), paths);
    return refused(
        by < 0 ? tr("“%1” is the first one in its group already.").arg(nodeText(*all.front().getTail()))
               : tr("“%1” is the last one in its group already.").arg(nodeText(*all.back().getTail())));
}

Act moveOut(const Paths& paths)
{
    Act act;
    const Paths all = childTargets(paths, act);
    if (all.isEmpty())
        return act;
    const SoPath from = parentPath(all.back());
    SoGroup* above = parentAt(from);
    if (!above)
        return refused(tr("“%1” stands in the root of the scene, out of which nothing can be moved.")
                           .arg(nodeText(*all.back().getTail())));
    return transfer(all, parentPath(from), above->findChild(from.getTail()) + 1, Transfer::Move);
}

Act moveIn(const Paths& paths)
{
    Act act;
    const Paths all = childTargets(paths, act);
    if (all.isEmpty())
        return act;
    const SoPath& first = all.front();
    SoGroup& parent = *parentAt(first);
    SoNode* before = parent.getChild(parent.findChild(first.getTail()) - 1);
    if (!before || !before->asGroup())
        return refused(
            tr("There is no group before “%1” that it could be moved into.").arg(nodeText(*first.getTail())));
    return transfer(all, extended(parentPath(first), before), -1, Transfer::Move);
}

Act switchOff(SoNode* root, const std::vector<SoNode*>& nodes)
{
    if (nodes.empty())
        return refused(tr("Nothing is hidden that could be hidden for good."));
    StructurePlan plan;
    for (SoNode* node : nodes) {
        if (node == root)
            return refusedRoot({extended({}, root)});
        const SoRef<SoSwitch> off(new SoSwitch);
        const std::vector<SoGroup*> parents = node->getParents();
        for (SoGroup* parent : parents) {
            const int place = isBelow(parent, root) ? plan.findChild(*parent, node) : -1;
            if (place >= 0)
                plan.replace(*parent, place, off.get());
        }
        plan.append(*off, node);
    }
    Act act = done(plan,
                   nodes.size() == 1 ? tr("Hide “%1” for Good").arg(nodeText(*nodes.front()))
                                     : tr("Hide %1 Nodes for Good").arg(nodes.size()),
                   {});
    return act;
}

} // namespace scopix::structure
