// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/sensors/SoNodeSensor.h>

#include <QAbstractItemModel>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

class QWidget;
class SoGroup;
class SoPath;

namespace scopix
{

class NodeFigures;

/// The scene as a tree of rows. Opens without walking the scene: a group's children are looked at when
/// a view asks for its rows. A node that stands in several places has a row at each. Follows the scene once
/// per turn of the sensor queue, and keeps every node that has a row alive until then. GUI thread only.
class SceneTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, TrianglesColumn, MemoryColumn, PlacesColumn, ColumnCount };
    /// The same in all scenes, for settings.
    QString columnKey(int column) const;
    /// Columns behind those above, by whoever knows more of nodes.
    struct MoreColumn {
        QString key;
        QString caption;
        std::function<QVariant(const SoNode&)> value; // a number or a text; an invalid one is empty
    };
    /// In place of those given before.
    void setMoreColumns(std::vector<MoreColumn> columns);

    /// Where the parent is a widget, its palette colours the icons.
    explicit SceneTreeModel(QObject* parent = nullptr);
    ~SceneTreeModel() override;

    /// The one top row; null empties the model.
    void setRoot(SoNode* root);
    SoNode* getRoot() const;

    /// Only these nodes get rows. They should be whole branches up to the root; the pointers are compared
    /// only.
    using NodeSet = std::unordered_set<const SoNode*>;
    void showOnly(NodeSet nodes);
    bool isShowingOnly(const NodeSet& nodes) const { return m_shown == nodes; }
    void showAll();
    bool isShowingAll() const { return !m_shown; }

    /// The rows are as the scene is now, without waiting for the sensor queue.
    void followNow();
    /// Null for an invalid index.
    SoNode* nodeAt(const QModelIndex& index) const;
    /// The first place where the node stands below the root, or an invalid index. Looks upwards from the
    /// node, so it costs the node's depth and not the size of the scene.
    QModelIndex indexOf(const SoNode* node) const;
    /// The row at the end of a path that starts at the root.
    QModelIndex indexOf(const SoPath& path) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// By what a column shows; -1: in the scene's order, as at first.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    bool isSorted() const { return m_sortColumn >= 0; }
    NodeFigures& getFigures() const { return *m_figures; }
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Only tells what was entered: whoever listens renames.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override { return {QStringLiteral("text/plain")}; }
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;

signals:
    void nameEntered(const QModelIndex& index, const QString& name);

private:
    struct Item;

    static void sceneChanged(void* self, SoSensor* sensor);
    void followScene();
    void followChildren(Item& item);
    void followName(Item& item);
    void removeItems(Item& item, int first, int count);
    void insertItems(Item& item, int first, const std::vector<SoNode*>& nodes);
    bool followExpandable(Item& item) const;

    QModelIndex indexDownwards(const std::vector<const SoNode*>& nodes) const;
    Item* itemAt(const QModelIndex& index) const;
    QModelIndex indexOfItem(Item& item, int column = NameColumn) const;
    std::vector<SoNode*> childrenOf(SoNode& node) const;
    bool hasShownChildren(SoNode& node) const;
    bool mayGetChildren(SoNode& node) const;
    bool isShown(const SoNode* node) const { return !m_shown || m_shown->count(node) > 0; }
    void listChildren(Item& item) const;
    void listAgain();
    const QWidget* surface() const;
    QVariant text(const SoNode& node, int column) const;
    QVariant moreValue(const SoNode& node, int column) const;
    QVariant sortKey(const SoNode& node) const;
    void sortChildren(std::vector<SoNode*>& children) const;

    NodeFigures* m_figures;
    std::vector<MoreColumn> m_more;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    std::unique_ptr<Item> m_root;
    std::optional<NodeSet> m_shown; // none: all
    SoNodeSensor m_sensor;
};

} // namespace scopix
