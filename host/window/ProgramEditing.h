// SPDX-License-Identifier: MIT
#pragma once

#include "structure/MirroredNode.h"
#include "structure/StructureActs.h"

namespace scopix
{

class SceneFiles;
class SceneStates;
class UserNotifier;

/// Those acts of NodeEditing for which a running program has to make nodes, or whose nodes it alone knows:
/// asked for here, they become a step of the history once the program has answered, or a sentence on why not.
/// All paths lead to nodes of the program. Owned by NodeEditing. GUI thread only.
class ProgramEditing
{
public:
    using AnswerTypes = MirroredNode::AnswerTypes;

    /// All must outlive it.
    ProgramEditing(SceneFiles& files, SceneStates& states, UserNotifier& notifier);

    /// Whether these are nodes of a running program.
    static bool isFor(const SoPath& path);
    static bool isFor(const Paths& paths);

    /// The types of which the program makes nodes at that place; no answer where there are none, which is
    /// told.
    void askTypesToAdd(const SoPath& place, const AnswerTypes& answer);
    void add(const SoPath& place, SoType type);
    void askTypesToPutAbove(const Paths& paths, const AnswerTypes& answer);
    /// A type of the program's that is called as this one.
    void insertAbove(const Paths& paths, SoType type);
    void group(const Paths& paths);
    void ungroup(const Paths& paths);
    void makeUnique(const Paths& paths);
    void duplicate(const Paths& paths);
    /// Copies, to the place that something new would have.
    void paste(const SoPath& place, const Paths& copied);
    /// Copies, to this place among the children of the group.
    void drop(const SoPath& group, int index, const Paths& dragged);

private:
    void tell(const QString& sentence);
    void askTypes(const SoPath& parent, const AnswerTypes& answer);
    void insertAbove(const Paths& paths, SoType type, SoType separator);
    structure::Act whileThere(const Paths& paths, const std::function<structure::Act()>& think) const;
    bool canBeDone(const Paths& paths, const structure::Act& tried);
    void perform(const std::vector<MirroredAddition>& additions, const QString& stepName);

    SceneFiles& m_files;
    SceneStates& m_states;
    UserNotifier& m_notifier;
};

} // namespace scopix
