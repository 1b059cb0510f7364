// SPDX-License-Identifier: MIT
#include "window/ProgramEditing.h"

#include "structure/SceneStates.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"
#include "window/NodeEditing.h"
#include "window/SceneFiles.h"

#include <algorithm>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return NodeEditing::tr(text);
}

// In the place of the node at the path.
MirroredAddition inPlaceOf(const SoPath& path, SoType type, SoNode* copied = nullptr)
{
    return {parentPath(path), parentAt(path)->findChild(path.getTail()), type, SoRef<SoNode>(copied)};
}

// The one that is called so, or else so behind its namespace.
SoType typeCalled(const QString& name, const std::vector<SoType>& types)
{
    const auto find = [&types](const auto& isIt) {
        const auto found = std::find_if(types.begin(), types.end(), isIt);
        return found == types.end() ? SoType() : *found;
    };
    const SoType exact = find([&name](SoType type) { return typeText(type) == name; });
    return exact.isBad() ? find([&name](SoType type) { return typeText(type).endsWith("::" + name); })
                         : exact;
}

// Ours governs what follows it, and has no children.
bool governs(const QString& typeName)
{
    const SoType ours = SoType::fromName(toName(typeName));
    return !ours.isBad() && !ours.isDerivedFrom(SoGroup::getClassTypeId());
}

// Into the group at the path, or behind the node there; into the only thing that a program has at its top.
MirroredAddition placeInProgram(const SoPath& path)
{
    const SoGroup* group = path.getTail()->asGroup();
    if (path.getLength() == 1 && group->getNumChildren() > 0)
        return placeInProgram(extended(path, group->getChild(0)));
    if (MirroredNode::of(path.getTail())->canHaveChildren() || path.getLength() == 1)
        return {path};
    return {parentPath(path), parentAt(path)->findChild(path.getTail()) + 1};
}

// Each is told where it stands once those before it are there.
std::vector<MirroredAddition> oneBehindTheOther(std::vector<MirroredAddition> additions)
{
    for (auto at = additions.begin(); at != additions.end(); ++at) {
        const auto isBefore = [at](const MirroredAddition& each) {
            return each.parent.getTail() == at->parent.getTail();
        };
        if (at->index >= 0)
            at->index += static_cast<int>(std::count_if(additions.begin(), at, isBefore));
    }
    return additions;
}

} // namespace

ProgramEditing::ProgramEditing(SceneFiles& files, SceneStates& states, UserNotifier& notifier)
    : m_files(files)
    , m_states(states)
    , m_notifier(notifier)
{
}

bool ProgramEditing::isFor(const SoPath& path)
{
    return !path.isEmpty() && MirroredNode::of(path.getTail()) != nullptr;
}

bool ProgramEditing::isFor(const Paths& paths)
{
    return !paths.isEmpty() && isFor(paths.front());
}

void ProgramEditing::tell(const QString& sentence)
{
    if (!sentence.isEmpty())
        m_notifier.info(sentence);
}

void ProgramEditing::askTypes(const SoPath& parent, const AnswerTypes& answer)
{
    MirroredNode* mirrored = MirroredNode::of(parent.getTail());
    const QString refusal = mirrored->structureRefusal();
    if (refusal.isEmpty())
        mirrored->askTypesToAdd(answer);
    tell(refusal);
}

// While the program makes what is new, the scene goes on.
structure::Act ProgramEditing::whileThere(const Paths& paths,
                                          const std::function<structure::Act()>& think) const
{
    if (areInScene(paths, m_files.getDocument().getRoot()))
        return think();
    structure::Act act;
    act.refusal = tr("Nothing was done, since the selected nodes have changed meanwhile; try it again.");
    return act;
}

// Nothing is made for what would be refused; that is told.
bool ProgramEditing::canBeDone(const Paths& paths, const structure::Act& tried)
{
    const auto isTop = [](const SoPath& path) { return path.getLength() < 3; };
    const auto top = std::find_if(paths.begin(), paths.end(), isTop);
    const QString refusal = top != paths.end()
                                ? tr("“%1” is what the program has at its top, and has to stay where it is.")
                                      .arg(nodeText(*top->getTail()))
                            : tried.command ? m_states.refusalOf(*tried.command)
                                            : tried.refusal;
    tell(refusal);
    return refusal.isEmpty();
}

// --- What the program makes by type

void ProgramEditing::askTypesToAdd(const SoPath& place, const AnswerTypes& answer)
{
    askTypes(placeInProgram(place).parent, answer);
}

void ProgramEditing::add(const SoPath& place, SoType type)
{
    MirroredAddition addition = placeInProgram(place);
    addition.type = type;
    perform({addition}, tr("Add %1").arg(typeText(type)));
}

void ProgramEditing::group(const Paths& paths)
{
    const auto think = [this, paths](const structure::MakeNode& make) {
        return whileThere(paths, [&] { return structure::group(paths, make); });
    };
    if (!canBeDone(paths, think(structure::makeOfType(SoGroup::getClassTypeId()))))
        return;
    askTypes(parentPath(paths.front()), [this, paths, think](const std::vector<SoType>& types) {
        const SoType type = typeCalled(QStringLiteral("Group"), types);
        if (type.isBad())
            return tell(tr("The program makes no nodes of a type called “Group”; choose Put Above ▸ Another… "
                           "to see which it makes."));
        MirroredNode::of(parentAt(paths.front()))
            ->actInProgram({{inPlaceOf(paths.front(), type)}, {}, think});
    });
}

void ProgramEditing::askTypesToPutAbove(const Paths& paths, const AnswerTypes& answer)
{
    if (canBeDone(paths, structure::insertAbove(paths, structure::makeOfType(SoGroup::getClassTypeId()))))
        askTypes(parentPath(paths.front()), answer);
}

void ProgramEditing::insertAbove(const Paths& paths, SoType type)
{
    const QString name = typeText(type);
    askTypesToPutAbove(paths, [this, paths, name](const std::vector<SoType>& types) {
        const SoType found = typeCalled(name, types);
        if (found.isBad())
            return tell(tr("The program makes no nodes of the type “%1”; choose Put Above ▸ Another… to "
                           "see which it makes.")
                            .arg(name));
        insertAbove(paths, found, governs(name) ? typeCalled(QStringLiteral("Separator"), types) : SoType());
    });
}

// Within a separator, where there is one.
void ProgramEditing::insertAbove(const Paths& paths, SoType type, SoType separator)
{
    const bool needsSeparator = !separator.isBad();
    MirroredAct act;
    for (const SoPath& path : paths) {
        act.additions.push_back(inPlaceOf(path, type));
        if (needsSeparator)
            act.additions.push_back(inPlaceOf(path, separator));
    }
    act.additions = oneBehindTheOther(act.additions);
    act.think = [this, paths, needsSeparator](const structure::MakeNode& make) {
        const auto makeSeparator = [&] { return needsSeparator ? make() : SoRef<SoNode>(); };
        return whileThere(paths, [&] { return structure::insertAbove(paths, make, makeSeparator); });
    };
    MirroredNode::of(parentAt(paths.front()))->actInProgram(act);
}

// --- What the program copies, and what it alone knows

void ProgramEditing::makeUnique(const Paths& paths)
{
    MirroredAct act;
    act.think = [this, paths](const structure::MakeNode& make) {
        const auto copy = [&make](const SoPath&) { return make(); };
        return whileThere(paths, [&] { return structure::makeUnique(paths, copy); });
    };
    if (!canBeDone(paths, act.think(structure::makeOfType(SoGroup::getClassTypeId()))))
        return;
    for (const SoPath& path : paths)
        act.additions.push_back(inPlaceOf(path, {}, path.getTail()));
    act.additions = oneBehindTheOther(act.additions);
    MirroredNode::of(parentAt(paths.front()))->actInProgram(act);
}

// Groups that have not been unfolded yet hold something too.
void ProgramEditing::ungroup(const Paths& paths)
{
    MirroredAct act;
    act.think = [this, paths](const structure::MakeNode&) {
        return whileThere(paths, [&] { return structure::ungroup(paths); });
    };
    if (!canBeDone(paths, act.think({})))
        return;
    for (SoNode* each : tailsOf(paths))
        act.unfolded.emplace_back(each);
    MirroredNode::of(parentAt(paths.front()))->actInProgram(act);
}

void ProgramEditing::perform(const std::vector<MirroredAddition>& additions, const QString& stepName)
{
    MirroredNode* parent = MirroredNode::of(additions.front().parent.getTail());
    const QString refusal = parent->structureRefusal();
    if (refusal.isEmpty())
        parent->actInProgram({oneBehindTheOther(additions), stepName});
    tell(refusal);
}

void ProgramEditing::duplicate(const Paths& paths)
{
    std::vector<MirroredAddition> additions;
    for (const SoPath& path : paths) {
        if (path.getLength() < 3)
            return tell(tr("“%1” is what the program has at its top, and cannot be duplicated.")
                            .arg(nodeText(*path.getTail())));
        additions.push_back(inPlaceOf(path, {}, path.getTail()));
        ++additions.back().index;
    }
    perform(additions, structure::nameOf(structure::Deed::Duplicate, paths));
}

void ProgramEditing::paste(const SoPath& place, const Paths& copied)
{
    std::vector<MirroredAddition> additions;
    for (const SoPath& path : copied) {
        additions.push_back(placeInProgram(place));
        additions.back().copied = path.getTail();
    }
    perform(additions, structure::nameOf(structure::Deed::Paste, copied));
}

void ProgramEditing::drop(const SoPath& group, int index, const Paths& dragged)
{
    std::vector<MirroredAddition> additions;
    for (const SoPath& path : dragged)
        additions.push_back({group, index, {}, path.getTail()});
    perform(additions, structure::nameOf(structure::Deed::Copy, dragged));
}

} // namespace scopix
