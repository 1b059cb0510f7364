#include "panels/SceneTreeModel.h"

#include "panels/NodeIcons.h"
#include "panels/NodeText.h"
#include <xsg/actions/SoPath.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <QFont>
#include <QIcon>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace
{

int childCount(SoNode* node)
{
    const SoGroup* group = node->asGroup();
    return group ? group->getNumChildren() : 0;
}

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

} // namespace

// One row: a node at one place of the scene.
struct SceneTreeModel::Place {
    Place(SoNode* itsNode, Place* itsParent, int itsRow)
        : node(itsNode)
        , parent(itsParent)
        , row(itsRow)
        , toldName(itsNode->getName())
    {
    }
    ~Place() { takeDown(std::move(children)); }

    // Level by level, since scenes may be nested deeper than the stack is.
    static void takeDown(std::vector<std::unique_ptr<Place>> places)
    {
        while (!places.empty()) {
            const std::unique_ptr<Place> place = std::move(places.back());
            places.pop_back();
            std::move(place->children.begin(), place->children.end(), std::back_inserter(places));
            place->children.clear();
        }
    }

    SoRef<SoNode> node;
    Place* parent;
    int row;
    bool listed = false; // its children have rows
    bool toldExpandable = false; // what hasChildren() told last
    SbName toldName;
    std::uint32_t seenChange = 0; // the node's count when its children were looked at last
    std::vector<std::unique_ptr<Place>> children;
};

SceneTreeModel::SceneTreeModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_sensor(sceneChanged, this)
{
}

SceneTreeModel::~SceneTreeModel() = default;

void SceneTreeModel::setRoot(SoNode* root)
{
    // The old rows go after everybody was told: with them may go the last reference to a node.
    const std::unique_ptr<Place> old = std::move(m_root);
    beginResetModel();
    m_root = root ? std::make_unique<Place>(root, nullptr, 0) : nullptr;
    m_sensor.attach(root);
    endResetModel();
}

SoNode* SceneTreeModel::getRoot() const
{
    return m_root ? m_root->node.get() : nullptr;
}

SceneTreeModel::Place* SceneTreeModel::placeAt(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Place*>(index.internalPointer()) : nullptr;
}

QModelIndex SceneTreeModel::indexOfPlace(Place& place, int column) const
{
    return createIndex(place.row, column, &place);
}

SoNode* SceneTreeModel::nodeAt(const QModelIndex& index) const
{
    const Place* place = placeAt(index);
    return place ? place->node.get() : nullptr;
}

void SceneTreeModel::listChildren(Place& place)
{
    if (place.listed)
        return;
    place.listed = true;
    place.seenChange = place.node->getChangeCount();
    const SoGroup* group = place.node->asGroup();
    const int count = childCount(place.node.get());
    place.children.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        place.children.push_back(std::make_unique<Place>(group->getChild(i), &place, i));
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
    Place* place = m_root.get();
    for (std::size_t step = 1; step < nodes.size(); ++step) {
        listChildren(*place);
        const auto is = [&](const std::unique_ptr<Place>& child) { return child->node.get() == nodes[step]; };
        const auto child = std::find_if(place->children.begin(), place->children.end(), is);
        if (child == place->children.end())
            return {}; // added in this turn: the row comes with the next one
        place = child->get();
    }
    return indexOfPlace(*place);
}

QModelIndex SceneTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || column >= ColumnCount || parent.column() > 0 || row >= rowCount(parent))
        return {};
    const Place* place = placeAt(parent);
    return indexOfPlace(place ? *place->children[static_cast<std::size_t>(row)] : *m_root, column);
}

QModelIndex SceneTreeModel::parent(const QModelIndex& child) const
{
    const Place* place = placeAt(child);
    return place && place->parent ? indexOfPlace(*place->parent) : QModelIndex();
}

int SceneTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_root ? 1 : 0;
    if (parent.column() != NameColumn)
        return 0;
    Place* place = placeAt(parent);
    listChildren(*place);
    return static_cast<int>(place->children.size());
}

int SceneTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

bool SceneTreeModel::hasChildren(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_root != nullptr;
    if (parent.column() != NameColumn)
        return false;
    Place* place = placeAt(parent);
    if (place->listed)
        return !place->children.empty();
    place->toldExpandable = childCount(place->node.get()) > 0;
    return place->toldExpandable;
}

QVariant SceneTreeModel::data(const QModelIndex& index, int role) const
{
    const Place* place = placeAt(index);
    if (!place)
        return {};
    const SoNode& node = *place->node;
    const QString type = scopix::toQString(node.getTypeId().getName());
    const bool named = node.getName().getLength() > 0;
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == TypeColumn ? type : scopix::nodeText(node);
    case Qt::ToolTipRole:
        return named ? tr("%1 “%2”").arg(type, scopix::nodeText(node)) : type;
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(scopix::nodeIcon(node.getTypeId())) : QVariant();
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
    return section == NameColumn ? tr("Node") : tr("Type");
}

void SceneTreeModel::sceneChanged(void* self, SoSensor* sensor)
{
    // Fields come and go by the thousand while a slider is dragged; rows only follow children and names.
    if (static_cast<SoNodeSensor*>(sensor)->isStructureChanged())
        static_cast<SceneTreeModel*>(self)->followScene();
}

void SceneTreeModel::followScene()
{
    bool expandableChanged = false;
    std::vector<Place*> pending{m_root.get()};
    while (!pending.empty()) {
        Place& place = *pending.back();
        pending.pop_back();
        followName(place);
        if (!place.listed) {
            expandableChanged |= followExpandable(place);
            continue;
        }
        if (place.seenChange == place.node->getChangeCount())
            continue;
        place.seenChange = place.node->getChangeCount();
        followChildren(place);
        for (const std::unique_ptr<Place>& child : place.children)
            pending.push_back(child.get());
    }
    if (expandableChanged) {
        // Rows that nobody asked for came or went: views learn whether to draw an arrow.
        emit layoutAboutToBeChanged();
        emit layoutChanged();
    }
}

bool SceneTreeModel::followExpandable(Place& place) const
{
    const bool expandable = childCount(place.node.get()) > 0;
    return std::exchange(place.toldExpandable, expandable) != expandable;
}

void SceneTreeModel::followChildren(Place& place)
{
    const SoGroup* group = place.node->asGroup();
    if (!group)
        return;
    // What stayed at both ends keeps its rows, and with them what is expanded and selected there.
    const int before = static_cast<int>(place.children.size());
    const int now = group->getNumChildren();
    const auto stayed = [&](int old, int current) {
        return place.children[static_cast<std::size_t>(old)]->node.get() == group->getChild(current);
    };
    int head = 0;
    while (head < std::min(before, now) && stayed(head, head))
        ++head;
    int tail = 0;
    while (tail < std::min(before, now) - head && stayed(before - 1 - tail, now - 1 - tail))
        ++tail;
    removePlaces(place, head, before - head - tail);
    insertPlaces(place, head, now - head - tail);
}

void SceneTreeModel::removePlaces(Place& place, int first, int count)
{
    if (count <= 0)
        return;
    beginRemoveRows(indexOfPlace(place), first, first + count - 1);
    const auto begin = place.children.begin() + first;
    std::vector<std::unique_ptr<Place>> removed(std::make_move_iterator(begin),
                                                std::make_move_iterator(begin + count));
    place.children.erase(begin, begin + count);
    for (std::size_t i = static_cast<std::size_t>(first); i < place.children.size(); ++i)
        place.children[i]->row = static_cast<int>(i);
    endRemoveRows();
    // Only now may the last reference to a node go: whoever hears of it may look at this model.
    Place::takeDown(std::move(removed));
}

void SceneTreeModel::insertPlaces(Place& place, int first, int count)
{
    if (count <= 0)
        return;
    const SoGroup* group = place.node->asGroup();
    beginInsertRows(indexOfPlace(place), first, first + count - 1);
    std::vector<std::unique_ptr<Place>> added;
    for (int i = first; i < first + count; ++i)
        added.push_back(std::make_unique<Place>(group->getChild(i), &place, i));
    place.children.insert(place.children.begin() + first, std::make_move_iterator(added.begin()),
                          std::make_move_iterator(added.end()));
    for (std::size_t i = static_cast<std::size_t>(first + count); i < place.children.size(); ++i)
        place.children[i]->row = static_cast<int>(i);
    endInsertRows();
}

void SceneTreeModel::followName(Place& place)
{
    const SbName name = place.node->getName();
    if (std::exchange(place.toldName, name) != name)
        emit dataChanged(indexOfPlace(place), indexOfPlace(place, TypeColumn));
}
