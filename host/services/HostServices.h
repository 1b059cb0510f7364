// SPDX-License-Identifier: MIT
#pragma once

#include "services/SceneSource.h"
#include "services/Selection.h"
#include "undo/GestureTracker.h"
#include "undo/UndoHistory.h"

#include <scopix/SpxNodeDefaults.h>
#include <scopix/SpxSceneServices.h>
#include <scopix/SpxServices.h>

namespace scopix
{

/// The services that the host offers to extensions: selection, and undo through the history of edits. Names
/// each step of the history by the selected field, and groups the commands of one gesture. GUI thread only.
class HostServices : public SpxServices, public SpxSceneServices, public SpxNodeDefaults
{
    Q_OBJECT

public:
    HostServices();
    ~HostServices() override;

    /// As in Selection; reported by the signals of SpxServices, and then by selectionChanged(). Whoever
    /// changes it, an editor that then applies what was typed edits for the user.
    void select(SoFieldContainer* node);
    void select(SoField* field);
    void clearSelection();
    void tellSelectionAgain();
    SoFieldContainer* selectedNode() const { return m_selection.node(); }
    SoField* selectedField() const { return m_selection.field(); }

    void executeCommand(SpxCommand* command) override;

    /// The source must outlive its use; null for none.
    void setSceneSource(SceneSource* source) { m_source = source; }
    SoNode* getSceneRoot() const override;
    SoPath getSelectedPath() const override;
    QList<SoFieldContainer*> getSelectedNodes() const override;
    void selectNode(SoFieldContainer* node) override { select(node); }
    void selectField(SoField* field) override { select(field); }
    void selectPath(const SoPath& path) override;
    void executeCommand(SpxCommand* command, const QString& stepName) override;
    void selectNodes(const QList<SoFieldContainer*>& nodes) override;
    void selectPaths(const QList<SoPath>& paths) override;
    QList<SoPath> getSelectedPaths() const override;

    bool canHaveUserDefault(const SoField& field) const override;
    bool hasUserDefault(const SoField& field) const override;
    QString setUserDefault(const SoField& field) override;
    QString clearUserDefault(const SoField& field) override;
    void applyUserDefaults(SoFieldContainer& node) const override;

    UndoHistory& history() { return m_history; }
    QUndoStack& undoStack() { return m_history.stack(); }

signals:
    /// Any change of what is selected, or the same once more.
    void selectionChanged();
    /// As UndoHistory::failed and lost.
    void commandFailed(const QString& sentence);
    void stepsLost(const QString& sentence);

private:
    UndoHistory::CommandContext currentContext() const;
    QString stepText() const;
    bool isEdited(const SoField& field) const;
    bool isInScene(const std::vector<SoNode*>& way) const;
    SoPath pathOf(const Selection::Place& place) const;
    template <class Change>
    void changeSelection(Change change)
    {
        const UserInput::Scope scope(m_history.input(), UserInput::Scope::User);
        change();
    }
    void containerDies(SoFieldContainer* container);
    static void dyingCallback(void* services, SoFieldContainer* container);

    GestureTracker m_gestures;
    Selection m_selection;
    UndoHistory m_history;
    SceneSource* m_source = nullptr;
};

} // namespace scopix
