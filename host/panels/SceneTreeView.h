// SPDX-License-Identifier: MIT
#pragma once

#include "panels/SceneTreeModel.h"

#include <xsg/actions/SoPath.h>

#include <QList>
#include <QPersistentModelIndex>
#include <QTreeView>

#include <functional>
#include <vector>

class QMimeData;

namespace scopix
{

class SceneStates;
class TreeColumnWidths;
class TreeRowDelegate;

/// Shows the scene's tree and reports which nodes the user selects in it, any number as in a file manager.
class SceneTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit SceneTreeView(QWidget* parent = nullptr);

    /// Starts at the root, with its first level open. Null empties the tree.
    void setScene(SoNode* root);
    SceneTreeModel& getModel() const { return *m_model; }
    /// The rows that are expanded, and those that stand in them.
    std::vector<SoPath> expandedPaths() const;
    void expandPaths(const std::vector<SoPath>& paths);

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

    /// The rows whose nodes it is true for have a dot.
    void setChanged(NodeTest isChanged) { m_isChanged = std::move(isChanged); }
    bool isChanged(const SoNode* node) const { return m_isChanged && m_isChanged(node); }

    /// What of the scene is hidden and locked, for the eyes in the rows; it must outlive the view.
    void setStates(const SceneStates* states);
    const SceneStates* getStates() const { return m_states; }
    /// The node of the row is not seen, by itself or by what it stands in.
    bool isOutOfSight(const QModelIndex& index) const;
    const TreeRowDelegate& getRows() const { return *m_rows; }
    QStyleOptionViewItem rowOptions() const { return viewOptions(); }
    /// Lets the user enter another name for the selected node, in its row.
    void editName();
    /// What is dragged when a drag begins now; null for nothing. For the caller to delete.
    QMimeData* makeDragData() const;
    /// Makes the text of dragged nodes where another program takes them; empty where it is not to be had.
    using MakeText = std::function<QString(const QList<SoPath>&)>;
    void setTextMaker(MakeText makeText) { m_makeText = std::move(makeText); }

    /// Name and type are shown at first.
    void setColumnShown(int column, bool on);
    bool isColumnShown(int column) const { return !isColumnHidden(column); }
    /// That shows the rows in sight as a whole, and the caption.
    int wantedWidth(int column) const;
    TreeColumnWidths& getColumnWidths() const { return *m_widths; }
    /// As of the model; what is selected stays so. They are shown.
    void setMoreColumns(std::vector<SceneTreeModel::MoreColumn> columns);
    /// Their values are others now.
    void updateMoreColumns();
    /// By what the column shows; -1: in the scene's order. What is selected and unfolded stays so.
    void sortRows(int column, Qt::SortOrder order);

    /// As of the model; what is selected stays so, and what was expanded before is expanded again by
    /// showAll().
    void showOnly(SceneTreeModel::NodeSet nodes);
    void showAll();

signals:
    /// Any change of the selected rows, with the node of the row that was selected last. Null when none is
    /// left, as when the selected node left the scene; it is still alive then.
    void nodeSelected(SoNode* node);
    void nameEntered(const SoPath& path, const QString& name);
    void eyeClicked(const SoPath& path);
    /// To this place among the children of the group; -1: behind them all. The action is what the user wants
    /// to become of it.
    void dropped(const QMimeData& data, const SoPath& group, int index, Qt::DropAction action);

protected:
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct DropPlace {
        QModelIndex group;
        int index;
    };
    void figuresChanged();
    void sortAgain();
    template <class Change>
    void listAgain(Change change);
    void sortClicked(int column);
    DropPlace placeFor(const QModelIndex& at) const;
    void passOn(QEvent* event);
    void unfoldAll(const QModelIndex& index);
    void dropSelection();
    void selectOnly(const QModelIndex& index);
    void selectRows(const QModelIndexList& rows);
    void followOrder(const QItemSelection& selected);
    QModelIndexList selectedRows() const;
    template <class Change>
    void keepSelection(Change change);
    static SoPath pathAt(QModelIndex index);

    SceneTreeModel* m_model;
    TreeColumnWidths* m_widths = nullptr;
    TreeRowDelegate* m_rows;
    const SceneStates* m_states = nullptr;
    NodeTest m_isMarked;
    NodeTest m_isChanged;
    MakeText m_makeText;
    std::vector<SoPath> m_expandedBefore; // only a part of the tree was shown
    QList<QPersistentModelIndex> m_order; // of the selected rows
    int m_sorted = -1;                    // by a click on this column
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    bool m_quiet = false;
};

} // namespace scopix
