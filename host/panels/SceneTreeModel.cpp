// SPDX-License-Identifier: MIT
#include "panels/SceneTreeModel.h"

#include "panels/NodeFigures.h"
#include "panels/NodeIcons.h"
#include "structure/MirroredNode.h"
#include "structure/Places.h"
#include "text/NodeText.h"
#include "theme/SvgIcon.h"

#include <xsg/actions/SoPath.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <QFont>
#include <QIcon>
#include <QLocale>
#include <QMimeData>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <unordered_set>
#include <utility>

namespace scopix
{

namespace
{

constexpr int MostPlaces = 1000; // that are counted for a row

// The nodes from `node` up to `root`, both included; empty where the one is not below the other.
std::vector<const SoNode*> pathUpwards(const SoNode* node, const SoNode* root)
{
    struct Step {
        const SoNode* node;
        std::size_t nextParent;
    };
    std::vector<Step> path{{node, 0}};
    std::unordered_set<const SoNode*> seen{node};
    while (!path.empty() && path.back().node != root) {
        Step& step = path.back();
        const auto& parents = step.node->getParents();
        if (step.nextParent == parents.size())
            path.pop_back();
        else if (const SoNode* parent = parents[step.nextParent++]; seen.insert(parent).second)
            path.push_back({parent, 0});
    }
    std::vector<const SoNode*> nodes;
    for (const Step& step : path)
        nodes.push_back(step.node);
    return nodes;
}

// Whole numbers as they are, others with three digits.
QVariant readable(const QVariant& value)
{
    if (!value.isValid() || value.type() == QVariant::String)
        return value;
    const double number = value.toDouble();
    return QLocale().toString(number, 'f', number == std::floor(number) ? 0 : 3);
}

} // namespace

// One row: a node at one place of the scene.
struct SceneTreeModel::Item {
    Item(SoNode* itsNode, Item* itsParent, int itsRow)
        : node(itsNode)
        , parent(itsParent)
        , row(itsRow)
        , reportedName(itsNode->getName())
    {
    }
    ~Item() { finalize(std::move(children)); }

    // Level by level, since scenes may be nested deeper than the stack is.
    static void finalize(std::vector<std::unique_ptr<Item>> items)
    {
        while (!items.empty()) {
            const std::unique_ptr<Item> item = std::move(items.back());
            items.pop_back();
            std::move(item->children.begin(), item->children.end(), std::back_inserter(items));
            item->children.clear();
        }
    }

    SoRef<SoNode> node;
    Item* parent;
    int row;
    bool listed = false;             // its children have rows
    bool reportedExpandable = false; // by hasChildren() when it was asked last
    SbName reportedName;
    std::uint32_t seenChange = 0; // the node's count when its children were looked at last
    std::vector<std::unique_ptr<Item>> children;
};

SceneTreeModel::SceneTreeModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_figures(new NodeFigures(this))
    , m_sensor(sceneChanged, this)
{
}

SceneTreeModel::~SceneTreeModel() = default;

void SceneTreeModel::setRoot(SoNode* root)
{
    // The old rows are destroyed after the views have been notified: they may hold the last reference to a
    // node.
    const std::unique_ptr<Item> old = std::move(m_root);
    beginResetModel();
    m_root = root ? std::make_unique<Item>(root, nullptr, 0) : nullptr;
    m_sensor.attach(root);
    m_figures->setRoot(root);
    endResetModel();
}

SoNode* SceneTreeModel::getRoot() const
{
    return m_root ? m_root->node.get() : nullptr;
}

SceneTreeModel::Item* SceneTreeModel::itemAt(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Item*>(index.internalPointer()) : nullptr;
}

QModelIndex SceneTreeModel::indexOfItem(Item& item, int column) const
{
    return createIndex(item.row, column, &item);
}

SoNode* SceneTreeModel::nodeAt(const QModelIndex& index) const
{
    const Item* item = itemAt(index);
    return item ? item->node.get() : nullptr;
}

std::vector<SoNode*> SceneTreeModel::childrenOf(SoNode& node) const
{
    const SoGroup* group = node.asGroup();
    std::vector<SoNode*> children = group ? group->getChildren() : std::vector<SoNode*>();
    const auto hidden = [this](const SoNode* child) { return !isShown(child); };
    children.erase(std::remove_if(children.begin(), children.end(), hidden), children.end());
    if (isSorted())
        sortChildren(children);
    return children;
}

bool SceneTreeModel::hasShownChildren(SoNode& node) const
{
    const SoGroup* group = node.asGroup();
    return group &&
           (mayGetChildren(node) || std::any_of(group->getChildren().begin(), group->getChildren().end(),
                                                [this](const SoNode* child) { return isShown(child); }));
}

bool SceneTreeModel::mayGetChildren(SoNode& node) const
{
    const MirroredNode* mirrored = isShowingAll() ? MirroredNode::of(&node) : nullptr;
    return mirrored && mirrored->mayHaveMoreChildren();
}

bool SceneTreeModel::canFetchMore(const QModelIndex& parent) const
{
    const Item* item = parent.column() > 0 ? nullptr : itemAt(parent);
    return item && mayGetChildren(*item->node);
}

void SceneTreeModel::fetchMore(const QModelIndex& parent)
{
    if (MirroredNode* mirrored = MirroredNode::of(nodeAt(parent)))
        mirrored->fetchChildren();
}

void SceneTreeModel::listChildren(Item& item) const
{
    if (item.listed)
        return;
    item.listed = true;
    item.seenChange = item.node->getChangeCount();
    const std::vector<SoNode*> children = childrenOf(*item.node);
    item.children.reserve(children.size());
    for (SoNode* child : children)
        item.children.push_back(std::make_unique<Item>(child, &item, static_cast<int>(item.children.size())));
}

void SceneTreeModel::showOnly(NodeSet nodes)
{
    m_shown = std::move(nodes);
    listAgain();
}

void SceneTreeModel::showAll()
{
    m_shown.reset();
    listAgain();
}

void SceneTreeModel::listAgain()
{
    if (m_root)
        setRoot(SoRef<SoNode>(getRoot()).get());
}

QModelIndex SceneTreeModel::indexOf(const SoNode* node) const
{
    if (!m_root || !node)
        return {};
    std::vector<const SoNode*> nodes = pathUpwards(node, getRoot());
    std::reverse(nodes.begin(), nodes.end());
    return indexDownwards(nodes);
}

QModelIndex SceneTreeModel::indexOf(const SoPath& path) const
{
    std::vector<const SoNode*> nodes;
    for (int i = 0; i < path.getLength(); ++i)
        nodes.push_back(path.getNode(i));
    return indexDownwards(nodes);
}

// `nodes` start at the root.
QModelIndex SceneTreeModel::indexDownwards(const std::vector<const SoNode*>& nodes) const
{
    if (nodes.empty() || nodes.front() != getRoot())
        return {};
    Item* item = m_root.get();
    for (std::size_t step = 1; step < nodes.size(); ++step) {
        listChildren(*item);
        const auto is = [&](const std::unique_ptr<Item>& child) { return child->node.get() == nodes[step]; };
        const auto child = std::find_if(item->children.begin(), item->children.end(), is);
        if (child == item->children.end())
            return {}; // added since the sensor ran last: its row follows
        item = child->get();
    }
    return indexOfItem(*item);
}

QModelIndex SceneTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || column >= columnCount() || parent.column() > 0 || row >= rowCount(parent))
        return {};
    const Item* item = itemAt(parent);
    return indexOfItem(item ? *item->children[static_cast<std::size_t>(row)] : *m_root, column);
}

QModelIndex SceneTreeModel::parent(const QModelIndex& child) const
{
    const Item* item = itemAt(child);
    return item && item->parent ? indexOfItem(*item->parent) : QModelIndex();
}

int SceneTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_root ? 1 : 0;
    if (parent.column() != NameColumn)
        return 0;
    Item* item = itemAt(parent);
    listChildren(*item);
    return static_cast<int>(item->children.size());
}

int SceneTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount + static_cast<int>(m_more.size());
}

bool SceneTreeModel::hasChildren(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_root != nullptr;
    if (parent.column() != NameColumn)
        return false;
    Item* item = itemAt(parent);
    if (item->listed)
        return !item->children.empty() || mayGetChildren(*item->node);
    item->reportedExpandable = hasShownChildren(*item->node);
    return item->reportedExpandable;
}

// The view, whose palette colours the icons.
const QWidget* SceneTreeModel::surface() const
{
    return qobject_cast<const QWidget*>(QObject::parent());
}

QVariant SceneTreeModel::data(const QModelIndex& index, int role) const
{
    const Item* item = itemAt(index);
    if (!item)
        return {};
    const SoNode& node = *item->node;
    const QString type = typeText(node.getTypeId());
    const bool named = !readableName(node).isEmpty();
    switch (role) {
    case Qt::DisplayRole:
        return text(node, index.column());
    case Qt::TextAlignmentRole:
        return index.column() >= TrianglesColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::EditRole:
        return toQString(node.getName());
    case Qt::ToolTipRole:
        return named ? tr("%1 “%2”").arg(type, nodeText(node)) : type;
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(nodeIcon(node.getTypeId(), surface())) : QVariant();
    case Qt::ForegroundRole: {
        const MirroredNode* mirrored = MirroredNode::of(&node);
        return mirrored && !mirrored->refusal().isEmpty() ? paletteOf(surface()).placeholderText()
                                                          : QVariant();
    }
    case Qt::FontRole: {
        QFont font;
        font.setItalic(!named);
        return index.column() == NameColumn ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

QVariant SceneTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section >= ColumnCount)
        return m_more[static_cast<std::size_t>(section - ColumnCount)].caption;
    const QString captions[] = {tr("Node"), tr("Type"), tr("Triangles"), tr("Memory"), tr("Places")};
    return captions[section];
}

void SceneTreeModel::setMoreColumns(std::vector<MoreColumn> columns)
{
    if (!m_more.empty()) {
        beginRemoveColumns({}, ColumnCount, columnCount() - 1);
        m_more.clear();
        endRemoveColumns();
    }
    if (columns.empty())
        return;
    beginInsertColumns({}, ColumnCount, ColumnCount + static_cast<int>(columns.size()) - 1);
    m_more = std::move(columns);
    endInsertColumns();
}

// Invalid where it is not known.
QVariant SceneTreeModel::moreValue(const SoNode& node, int column) const
{
    return m_more[static_cast<std::size_t>(column - ColumnCount)].value(node);
}

QString SceneTreeModel::columnKey(int column) const
{
    if (column >= ColumnCount)
        return m_more[static_cast<std::size_t>(column - ColumnCount)].key;
    const char* const keys[] = {"node", "type", "triangles", "memory", "places"};
    return QLatin1String(keys[column]);
}

QVariant SceneTreeModel::text(const SoNode& node, int column) const
{
    if (column >= ColumnCount)
        return readable(moreValue(node, column));
    switch (column) {
    case NameColumn:
        return nodeText(node);
    case TypeColumn:
        return typeText(node.getTypeId());
    case PlacesColumn: {
        const int places = countPlaces(&node, getRoot(), MostPlaces);
        return QLocale().toString(places) + (places == MostPlaces ? QStringLiteral("+") : QString());
    }
    default:
        break;
    }
    const auto figures = m_figures->find(&node);
    if (!figures)
        return QStringLiteral("…");
    return column == TrianglesColumn ? QLocale().toString(figures->triangles)
                                     : QLocale().formattedDataSize(figures->bytes, 1);
}

QVariant SceneTreeModel::sortKey(const SoNode& node) const
{
    if (m_sortColumn == NameColumn || m_sortColumn == TypeColumn)
        return text(node, m_sortColumn);
    if (m_sortColumn >= ColumnCount)
        return moreValue(node, m_sortColumn);
    if (m_sortColumn == PlacesColumn)
        return countPlaces(&node, getRoot(), MostPlaces);
    const auto figures = m_figures->find(&node);
    return !figures ? qint64(-1) : m_sortColumn == TrianglesColumn ? figures->triangles : figures->bytes;
}

void SceneTreeModel::sortChildren(std::vector<SoNode*>& children) const
{
    std::vector<std::pair<QVariant, SoNode*>> keyed;
    keyed.reserve(children.size());
    for (SoNode* child : children)
        keyed.emplace_back(sortKey(*child), child);
    const auto isLess = [](const QVariant& a, const QVariant& b) {
        if (!a.isValid() || !b.isValid())
            return !a.isValid() && b.isValid();
        return a.type() == QVariant::String ? a.toString().compare(b.toString(), Qt::CaseInsensitive) < 0
                                            : a.toDouble() < b.toDouble();
    };
    std::stable_sort(keyed.begin(), keyed.end(), [&](const auto& a, const auto& b) {
        return m_sortOrder == Qt::AscendingOrder ? isLess(a.first, b.first) : isLess(b.first, a.first);
    });
    std::transform(keyed.begin(), keyed.end(), children.begin(),
                   [](const auto& each) { return each.second; });
}

void SceneTreeModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    listAgain();
}

void SceneTreeModel::sceneChanged(void* self, SoSensor* sensor)
{
    // A dragged slider changes fields thousands of times; rows only follow children and names.
    if (static_cast<SoNodeSensor*>(sensor)->isStructureChanged())
        static_cast<SceneTreeModel*>(self)->followScene();
}

void SceneTreeModel::followNow()
{
    if (m_root)
        followScene();
}

Qt::ItemFlags SceneTreeModel::flags(const QModelIndex& index) const
{
    const SoNode* node = nodeAt(index);
    if (!node)
        return Qt::NoItemFlags;
    const bool isName = index.column() == NameColumn;
    const bool isGroup = const_cast<SoNode*>(node)->asGroup() != nullptr;
    return QAbstractItemModel::flags(index) | Qt::ItemIsDragEnabled |
           (isName ? Qt::ItemIsEditable : Qt::NoItemFlags) |
           (isGroup ? Qt::ItemIsDropEnabled : Qt::NoItemFlags);
}

bool SceneTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const SoNode* node = nodeAt(index);
    if (!node || role != Qt::EditRole || value.toString() == toQString(node->getName()))
        return false;
    emit nameEntered(index, value.toString());
    return true;
}

Qt::DropActions SceneTreeModel::supportedDropActions() const
{
    return Qt::MoveAction | Qt::CopyAction | Qt::LinkAction;
}

bool SceneTreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction /*action*/, int /*row*/,
                                     int /*column*/, const QModelIndex& parent) const
{
    const SoNode* group = nodeAt(parent);
    return data->hasText() && group && const_cast<SoNode*>(group)->asGroup();
}

void SceneTreeModel::followScene()
{
    bool expandableChanged = false;
    std::vector<Item*> pending{m_root.get()};
    while (!pending.empty()) {
        Item& item = *pending.back();
        pending.pop_back();
        followName(item);
        if (!item.listed) {
            expandableChanged |= followExpandable(item);
            continue;
        }
        if (item.seenChange == item.node->getChangeCount())
            continue;
        item.seenChange = item.node->getChangeCount();
        followChildren(item);
        for (const std::unique_ptr<Item>& child : item.children)
            pending.push_back(child.get());
    }
    if (expandableChanged) {
        // Rows that no view asked for were added or removed: the views draw an arrow or none.
        emit layoutAboutToBeChanged();
        emit layoutChanged();
    }
}

bool SceneTreeModel::followExpandable(Item& item) const
{
    const bool expandable = hasShownChildren(*item.node);
    return std::exchange(item.reportedExpandable, expandable) != expandable;
}

void SceneTreeModel::followChildren(Item& item)
{
    const std::vector<SoNode*> children = childrenOf(*item.node);
    // Children that are unchanged at both ends keep their rows, with what is expanded and selected there.
    const int before = static_cast<int>(item.children.size());
    const int now = static_cast<int>(children.size());
    const auto stayed = [&](int old, int current) {
        return item.children[static_cast<std::size_t>(old)]->node.get() ==
               children[static_cast<std::size_t>(current)];
    };
    int head = 0;
    while (head < std::min(before, now) && stayed(head, head))
        ++head;
    int tail = 0;
    while (tail < std::min(before, now) - head && stayed(before - 1 - tail, now - 1 - tail))
        ++tail;
    removeItems(item, head, before - head - tail);
    insertItems(item, head, {children.begin() + head, children.end() - tail});
}

void SceneTreeModel::removeItems(Item& item, int first, int count)
{
    if (count <= 0)
        return;
    beginRemoveRows(indexOfItem(item), first, first + count - 1);
    const auto begin = item.children.begin() + first;
    std::vector<std::unique_ptr<Item>> removed(std::make_move_iterator(begin),
                                               std::make_move_iterator(begin + count));
    item.children.erase(begin, begin + count);
    for (std::size_t i = static_cast<std::size_t>(first); i < item.children.size(); ++i)
        item.children[i]->row = static_cast<int>(i);
    endRemoveRows();
    // Only now may the last reference to a node be released: whoever is notified of that may use this model.
    Item::finalize(std::move(removed));
}

void SceneTreeModel::insertItems(Item& item, int first, const std::vector<SoNode*>& nodes)
{
    if (nodes.empty())
        return;
    const int count = static_cast<int>(nodes.size());
    beginInsertRows(indexOfItem(item), first, first + count - 1);
    std::vector<std::unique_ptr<Item>> added;
    for (SoNode* node : nodes)
        added.push_back(std::make_unique<Item>(node, &item, first + static_cast<int>(added.size())));
    item.children.insert(item.children.begin() + first, std::make_move_iterator(added.begin()),
                         std::make_move_iterator(added.end()));
    for (std::size_t i = static_cast<std::size_t>(first + count); i < item.children.size(); ++i)
        item.children[i]->row = static_cast<int>(i);
    endInsertRows();
}

void SceneTreeModel::followName(Item& item)
{
    const SbName name = item.node->getName();
    if (std::exchange(item.reportedName, name) != name)
        emit dataChanged(indexOfItem(item), indexOfItem(item, TypeColumn));
}

} // namespace scopix
