// SPDX-License-Identifier: MIT
#pragma once

#include "panels/SceneTreeModel.h"

#include <xsg/actions/SoPath.h>

#include <QList>
#include <QPersistentModelIndex>
#include <QTreeView>

#include <functional>
#include <vector>

namespace scopix
{

/// Shows the scene's tree and reports which nodes the user selects in it, any number as in a file manager.
class SceneTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit SceneTreeView(QWidget* parent = nullptr);

    /// Starts at the root, with its first level open. Null empties the tree.
    void setScene(SoNode* root);
    SceneTreeModel& getModel() const { return *m_model; }

    /// Selects the node's row alone and expands its parents. A row of the same node that is selected already
    /// stays, whichever of its places it is. Emits nothing.
    void showNode(const SoNode* node);
    /// Selects these rows alone, as far as they are there; the last is the current one. Emits nothing.
    void showPaths(const QList<SoPath>& paths);
    /// As if the user had clicked the row at the end of this path, which starts at the root.
    void selectPath(const SoPath& path);
    /// As if the user had clicked the node's row, in the first of its places.
    void selectNode(const SoNode* node);
    /// From the root to the row that was selected last; empty where none is selected.
    SoPath getSelectedPath() const;
    /// In the order in which the rows were selected.
    QList<SoPath> getSelectedPaths() const;
    /// To the first of the node's rows; empty where it has none.
    SoPath pathTo(const SoNode* node) const { return pathAt(m_model->indexOf(node)); }
    /// Expands the node's parents.
    void unfoldTo(const SoNode* node);
    /// Brings the node's row into sight, without selecting it.
    void reveal(const SoNode* node);

    /// The rows whose nodes it is true for are drawn so that they catch the eye.
    using NodeTest = std::function<bool(const SoNode*)>;
    void setMarked(NodeTest isMarked) { m_isMarked = std::move(isMarked); }
    bool isMarked(const SoNode* node) const { return m_isMarked && m_isMarked(node); }

    /// As of the model; what is selected stays so, and what was expanded before is expanded again by
    /// showAll().
    void showOnly(SceneTreeModel::NodeSet nodes);
    void showAll();

signals:
    /// Any change of the selected rows, with the node of the row that was selected last. Null when none is
    /// left, as when the selected node left the scene; it is still alive then.
    void nodeSelected(SoNode* node);

protected:
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void unfoldAll(const QModelIndex& index);
    void dropSelection();
    void selectOnly(const QModelIndex& index);
    void selectRows(const QModelIndexList& rows);
    void followOrder(const QItemSelection& selected);
    QModelIndexList selectedRows() const;
    template <class Change>
    void keepSelection(Change change);
    std::vector<SoPath> expandedPaths() const;
    static SoPath pathAt(QModelIndex index);

    SceneTreeModel* m_model;
    NodeTest m_isMarked;
    std::vector<SoPath> m_expandedBefore; // only a part of the tree was shown
    QList<QPersistentModelIndex> m_order; // of the selected rows
    bool m_quiet = false;
};

} // namespace scopix
