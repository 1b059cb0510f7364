// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

class SoPath;
class SoNode;

namespace scopix
{

class SceneTreeModel;

/// Shows the scene's tree and reports which node the user selects in it.
class SceneTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit SceneTreeView(QWidget* parent = nullptr);

    /// Starts at the root, with its first level open. Null empties the tree.
    void setScene(SoNode* root);
    SceneTreeModel& getModel() const { return *m_model; }

    /// Selects the node's row and expands its parents. A row of the same node that is selected already stays,
    /// whichever of its places it is. Emits nothing.
    void showNode(const SoNode* node);
    /// As if the user had clicked the row at the end of this path, which starts at the root.
    void selectPath(const SoPath& path);
    /// From the root to the selected row; empty where none is selected.
    SoPath getSelectedPath() const;

signals:
    /// Null when the selected node left the scene; it is still alive then.
    void nodeSelected(SoNode* node);

protected:
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void dropSelection();

    SceneTreeModel* m_model;
    bool m_quiet = false;
};

} // namespace scopix
