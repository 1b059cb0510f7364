// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>
#include <xsg/actions/SoPath.h>

#include <QList>
#include <QString>

class SoField;
class SpxCommand;

/// What a host may offer beyond SpxServices: the scene as a whole, selecting in it, and names for undo steps.
/// GUI thread only.
class SPX_API SpxSceneServices
{
public:
    /// Null where the host does not offer this.
    static SpxSceneServices* getInstance();

    SpxSceneServices(const SpxSceneServices&) = delete;
    SpxSceneServices& operator=(const SpxSceneServices&) = delete;

    /// Null where nothing is open.
    virtual SoNode* getSceneRoot() const = 0;
    /// From the root to the selected place; empty where nothing is selected, or a node that stands nowhere in
    /// the scene.
    virtual SoPath getSelectedPath() const = 0;
    /// In the order in which they were selected, the one that editors show last; empty where nothing is
    /// selected.
    virtual QList<SoFieldContainer*> getSelectedNodes() const = 0;

    /// As if the user had selected it; reported by the signals of SpxServices. Null selects nothing.
    virtual void selectNode(SoFieldContainer* node) = 0;
    /// Selects the field's node too.
    virtual void selectField(SoField* field) = 0;
    /// Selects the last node of a path that starts at the scene's root, in that place of perhaps several.
    virtual void selectPath(const SoPath& path) = 0;

    /// As SpxServices::executeCommand(), and names the step, as in "Change Material.shininess". The first
    /// command of a step names it.
    virtual void executeCommand(SpxCommand* command, const QString& stepName) = 0;

    /// Selects all of these instead of what is selected; the last is the one that editors show. As with one,
    /// SpxServices::selectedNodeChanged tells it, with the last one, and again whenever others join or go.
    virtual void selectNodes(const QList<SoFieldContainer*>& nodes) = 0;
    /// Each in that place of perhaps several. Paths that do not stand in the scene are left out.
    virtual void selectPaths(const QList<SoPath>& paths) = 0;
    /// Of the selected nodes, in the same order, those that stand in the scene.
    virtual QList<SoPath> getSelectedPaths() const = 0;

    /// Before the user edits a field of a node that is not selected, as in a panel that stays with its node:
    /// the host then sees what is written, as it does with what is selected. SpxSetFieldCommand does it.
    virtual void aboutToEdit(const SoField& field) = 0;

protected:
    SpxSceneServices() = default;
    virtual ~SpxSceneServices();
};
