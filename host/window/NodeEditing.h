// SPDX-License-Identifier: MIT
#pragma once

#include "structure/StructureActs.h"
#include "window/ProgramEditing.h"

#include <QObject>

class QMimeData;

namespace scopix
{

class HostServices;
class SceneFiles;
class SceneStates;
class SceneTreeView;
class UserNotifier;

/// What the user does with the selected nodes: each act becomes a step of the undo history, or a sentence on
/// why it cannot be done. GUI thread only.
class NodeEditing : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it.
    NodeEditing(HostServices& services, SceneFiles& files, SceneTreeView& tree, SceneStates& states,
                UserNotifier& notifier, QObject* parent = nullptr);

    ~NodeEditing() override;

    /// Does what is entered in this tree, and dropped there.
    void serve(SceneTreeView& tree);

    /// False where it is refused, which is told.
    bool perform(structure::Act act);
    Paths selected() const;
    /// Where something new goes: behind what is selected last, or else to the end of the scene.
    SoPath placeForNew() const;

    void remove();
    void duplicate();
    void group();
    void ungroup();
    void makeUnique();
    void reorder(int by);
    void moveOut();
    void moveIn();
    /// Which types of nodes there are to add where something new goes; no answer where there are none, which
    /// is told.
    void askTypesToAdd(const std::function<void(const std::vector<SoType>&)>& answer);
    void add(SoType type);
    /// The same for what is put above the selected nodes.
    void askTypesToPutAbove(const std::function<void(const std::vector<SoType>&)>& answer);
    void insertAbove(SoType type);
    void rename(const SoPath& path, const QString& name);

    void copy();
    void cut();
    void paste();
    /// The very nodes that were copied, so that they stand in several places.
    void pasteShared();

    /// What was dragged, to this place among the children of the group; -1: behind them all.
    void drop(const QMimeData& data, const SoPath& group, int index, Qt::DropAction action);
    void insert(const std::vector<SoRef<SoNode>>& nodes, const QString& stepName);
    /// Of what was dragged, for another program, which waits for it; empty where the user cancels it, or it
    /// is too large to be handed over at once, which is told.
    QString textToDrop(const Paths& paths);

    void toggleHidden() { toggleHidden(selected()); }
    void toggleHidden(const Paths& paths);
    void showAll();
    void toggleIsolated();
    void toggleLocked();
    /// Writes what is hidden to the scene, as a step.
    void makePermanent();

private:
    void tell(const QString& sentence);
    void showAfter(const Paths& selection);
    std::vector<SoNode*> selectedNodes() const;
    void tellNothingSelected();
    bool runLong(const QString& what, const std::function<void()>& work);
    void performCopying(const std::function<structure::Act()>& think);
    structure::Act transfer(const Paths& paths, const SoPath& group, int index, structure::Transfer how);
    structure::Act addDropped(const SoPath& group, const std::vector<SoRef<SoNode>>& nodes);
    bool areThere(const Paths& paths) const;
    structure::MakeNode makerOf(SoType type) const;
    void pasteInProgram(const SoPath& place);
    bool holdsOwnCopy(const QMimeData* data) const;
    bool putOnClipboard();
    std::vector<SoRef<SoNode>> readText(const QMimeData& data);

    HostServices& m_services;
    SceneFiles& m_files;
    SceneTreeView& m_tree;
    SceneStates& m_states;
    UserNotifier& m_notifier;
    ProgramEditing m_program;
    Paths m_copied; // what the clipboard holds as text, while it does
    QByteArray m_copiedKey;
    bool m_isHandingOver = false;
};

} // namespace scopix
