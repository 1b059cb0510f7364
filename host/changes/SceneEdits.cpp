// SPDX-License-Identifier: MIT
#include "changes/SceneEdits.h"

#include "text/NodeText.h"
#include "undo/FieldEdit.h"
#include "undo/UndoHistory.h"

#include <xsg/core/SoMField.h>
#include <xsg/fields/SoSFImage.h>

#include <QDateTime>

#include <algorithm>

namespace scopix
{

namespace
{

using Kind = ChangeKey::Kind;

constexpr int TextLimit = 80;
constexpr std::size_t MostParents = 256; // of a node, that are looked at
constexpr std::size_t NodeBytes = 16;

int countOf(const SoField& field)
{
    const auto* list = dynamic_cast<const SoMField*>(&field);
    return list ? list->getNum() : -1;
}

SoNode* ownerOf(const SoField& field)
{
    return dynamic_cast<SoNode*>(field.getContainer());
}

QString toText(const SoScenePath& path)
{
    return QString::fromStdString(path.toText());
}

QString nameText(SbName name)
{
    return name.getLength() > 0 ? QStringLiteral("“%1”").arg(toQString(name)) : SceneEdits::tr("no name");
}

} // namespace

SceneEdits::SceneEdits(UndoHistory& history, QObject* parent)
    : ChangeSource(parent)
    , m_history(history)
{
    listen();
    SoFieldContainer::addDyingCallback(dyingCallback, this);
}

SceneEdits::~SceneEdits()
{
    begin(nullptr, {});
    SoFieldContainer::removeDyingCallback(dyingCallback, this);
    if (m_history.getWatch() == this)
        m_history.setWatch(nullptr);
}

void SceneEdits::listen()
{
    m_history.setWatch(this);
}

void SceneEdits::begin(SoNode* root, const QString& baselineName)
{
    if (m_root)
        m_root->removeListener(this);
    clear();
    m_root = root;
    m_baselineName = baselineName;
    m_places.setRoot(root);
    if (m_root)
        m_root->addListener(this);
    emit ChangeSource::changed();
}

void SceneEdits::clear()
{
    // What they keep goes last: with it, nodes may go that are known here.
    const auto fields = std::exchange(m_fields, {});
    const auto groups = std::exchange(m_groups, {});
    m_fieldsOf.clear();
    m_names.clear();
    m_stale.clear();
    m_rows.clear();
    m_came.clear();
    m_gone.clear();
    m_list.clear();
    m_marked.clear();
    m_isBelow.clear();
    m_wasBelow.clear();
    m_places.clear();
    m_announced = nullptr;
    m_isStructureStale = m_isListStale = false;
    ++m_listVersion;
}

// --- Hearing of edits

void SceneEdits::noticeLater()
{
    if (std::exchange(m_isNoticed, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isNoticed = false;
            emit ChangeSource::changed();
        },
        Qt::QueuedConnection);
}

void SceneEdits::aboutToWrite(SoField& field, int start, int removed)
{
    if (!m_root || !ownerOf(field) || (m_isHeld && m_isHeld()))
        return;
    FieldEntry& entry = m_fields[&field];
    if (!entry.edit) {
        entry.edit = std::make_unique<FieldEdit>(field);
        entry.number = ++m_number;
        m_fieldsOf[field.getContainer()].push_back(&field);
        m_stale.push_back(&field);
    } else if (!std::exchange(entry.isStale, true)) {
        m_stale.push_back(&field);
    }
    entry.edit->aboutToWrite(start, removed);
    entry.time = QDateTime::currentMSecsSinceEpoch();
    m_announced = &field;
    noticeLater();
}

void SceneEdits::aboutToRun()
{
    if (m_runs++ == 0)
        m_watchBefore = StructureWatch::setActive(this);
}

void SceneEdits::hasRun()
{
    if (--m_runs == 0)
        StructureWatch::setActive(m_watchBefore);
    m_announced = nullptr;
    for (auto& [group, entry] : m_groups)
        entry.edit->noteCount();
}

void SceneEdits::aboutToChangeChildren(SoGroup& group, int start, int removed)
{
    if (!m_root)
        return;
    GroupEntry& entry = m_groups[&group];
    if (!entry.edit) {
        entry.edit = std::make_unique<ChildrenEdit>(group);
        entry.number = ++m_number;
    }
    entry.edit->aboutToChange(start, removed);
    entry.time = QDateTime::currentMSecsSinceEpoch();
    m_isStructureStale = true;
    noticeLater();
}

void SceneEdits::aboutToRename(SoNode& node)
{
    if (!m_root)
        return;
    NameEntry& entry = m_names.emplace(&node, NameEntry{node.getName(), 0, 0}).first->second;
    entry.number = entry.number > 0 ? entry.number : ++m_number;
    entry.time = QDateTime::currentMSecsSinceEpoch();
    m_isStructureStale = true;
    noticeLater();
}

void SceneEdits::changed(const SoNotification& change)
{
    if (!change.field) {
        m_isStructureStale = true; // places are others, whoever did it
        if (!m_fields.empty() || !m_groups.empty() || !m_names.empty())
            noticeLater();
        return;
    }
    const auto found = m_fields.find(change.field);
    if (found == m_fields.end() || m_history.isUnrecorded())
        return;
    FieldEntry& entry = found->second;
    if (m_announced == change.field) {
        entry.isElsewhere = false;
        entry.count = countOf(*change.field);
        return;
    }
    entry.isElsewhere = true;
    if (!std::exchange(entry.isStale, true))
        m_stale.push_back(change.field);
    noticeLater();
}

void SceneEdits::subjectDestroyed()
{
    begin(nullptr, {});
}

void SceneEdits::dyingCallback(void* self, SoFieldContainer* container)
{
    static_cast<SceneEdits*>(self)->forget(container);
}

void SceneEdits::forget(const SoFieldContainer* container)
{
    if (m_fields.empty() && m_names.empty() && m_groups.empty())
        return; // as for each node of a scene that goes
    std::vector<FieldEntry> dropped;
    if (const auto found = m_fieldsOf.find(container); found != m_fieldsOf.end()) {
        for (SoField* field : found->second) {
            m_stale.erase(std::remove(m_stale.begin(), m_stale.end(), field), m_stale.end());
            const auto entry = m_fields.find(field);
            dropped.push_back(std::move(entry->second));
            m_fields.erase(entry);
        }
        m_fieldsOf.erase(found);
        m_isListStale = true;
    }
    auto* node = dynamic_cast<SoNode*>(const_cast<SoFieldContainer*>(container));
    if (!node)
        return;
    m_isStructureStale |= m_names.erase(node) > 0;
    const auto group = m_groups.find(node->asGroup());
    const GroupEntry kept = group == m_groups.end() ? GroupEntry() : std::move(group->second);
    if (group != m_groups.end()) {
        m_groups.erase(group);
        m_isStructureStale = true;
    }
    // Until then, nothing of it may be told.
    if (!dropped.empty() || kept.edit || m_marked.count(node) > 0) {
        m_rows.clear();
        m_list.clear();
        m_marked.clear();
        m_isListStale = m_isStructureStale = true;
        noticeLater();
    }
}

// --- What differs

void SceneEdits::update()
{
    if (m_isHeld && m_isHeld())
        return;
    m_announced = nullptr;
    compareFields();
    if (std::exchange(m_isStructureStale, false)) {
        compareStructure();
        m_isListStale = true;
    }
    if (std::exchange(m_isListStale, false))
        makeList();
}

// Somebody else has changed the number of values, so that the edited part is no longer known.
bool SceneEdits::isLost(const FieldEntry& entry, const SoField& field)
{
    return entry.isElsewhere && entry.count >= 0 && entry.count != countOf(field);
}

void SceneEdits::compareFields()
{
    for (SoField* field : std::exchange(m_stale, {})) {
        FieldEntry& entry = m_fields.at(field);
        entry.isStale = false;
        entry.version = ++m_version;
        m_isListStale |= std::exchange(entry.isNew, false);
        if (isLost(entry, *field))
            continue;
        if (entry.isElsewhere)
            entry.edit->noteOtherWrite();
        entry.edit->compare();
        if (!entry.edit->isNothing())
            continue;
        m_isListStale = true;
        auto& fields = m_fieldsOf.at(field->getContainer());
        fields.erase(std::find(fields.begin(), fields.end(), field));
        if (fields.empty())
            m_fieldsOf.erase(field->getContainer());
        m_fields.erase(field);
    }
}

void SceneEdits::compareStructure()
{
    m_places.clear();
    m_isBelow.clear();
    m_wasBelow.clear();
    m_rows.clear();
    m_came.clear();
    m_gone.clear();
    m_structureVersion = ++m_version;
    for (auto at = m_names.begin(); at != m_names.end();)
        at = at->first->getName() == at->second.before ? m_names.erase(at) : std::next(at);
    std::vector<std::pair<quint64, SoGroup*>> groups;
    for (auto at = m_groups.begin(); at != m_groups.end();) {
        const bool isNothing = !at->second.edit->isLost() && at->second.edit->isNothing();
        if (!isNothing)
            groups.emplace_back(at->second.number, at->first);
        at = isNothing ? m_groups.erase(at) : std::next(at);
    }
    std::sort(groups.begin(), groups.end());
    std::vector<SoNode*> order;
    for (const auto& [number, group] : groups) {
        const ChildrenEdit& edit = *m_groups.at(group).edit;
        std::map<SoNode*, int> more;
        for (SoNode* child : edit.after())
            ++more[child];
        for (SoNode* child : edit.before())
            --more[child];
        for (const auto& [child, count] : more) {
            if (count == 0)
                continue;
            (count > 0 ? m_came : m_gone)[{child, group}] = std::abs(count);
            order.push_back(child);
        }
    }
    addRows(order, m_came, m_gone);
    for (const auto& [number, group] : groups) {
        const ChildrenEdit& edit = *m_groups.at(group).edit;
        const auto staying = [](ChildrenEdit::Children children, Links links, SoGroup* in) {
            const auto isOther = [&](SoNode* child) {
                const auto found = links.find({child, in});
                return found != links.end() && found->second-- > 0;
            };
            children.erase(std::remove_if(children.begin(), children.end(), isOther), children.end());
            return children;
        };
        if (stood(*group) && staying(edit.before(), m_gone, group) != staying(edit.after(), m_came, group))
            m_rows[{Kind::Order, group, nullptr, 0}] = {group, group, group, &m_groups.at(group)};
    }
    for (const auto& [node, entry] : m_names) {
        if (stood(*node))
            m_rows[{Kind::Rename, node, nullptr, 0}] = {node, nullptr, nullptr, nullptr};
    }
}

// What came to one group and is gone from another one was moved.
void SceneEdits::addRows(const std::vector<SoNode*>& order, const Links& came, const Links& gone)
{
    const auto groupsOfNode = [](const Links& links, const SoNode* node) {
        std::vector<SoGroup*> groups;
        for (auto at = links.lower_bound({node, nullptr}); at != links.end() && at->first.first == node; ++at)
            groups.insert(groups.end(), static_cast<std::size_t>(at->second), at->first.second);
        return groups;
    };
    std::unordered_set<const SoNode*> seen;
    for (SoNode* node : order) {
        if (!seen.insert(node).second)
            continue;
        const std::vector<SoGroup*> to = groupsOfNode(came, node);
        const std::vector<SoGroup*> from = groupsOfNode(gone, node);
        for (std::size_t i = 0; i < std::max(to.size(), from.size()); ++i) {
            StructureRow row{node, i < from.size() ? from[i] : nullptr, i < to.size() ? to[i] : nullptr,
                             nullptr};
            row.entry = &m_groups.at(row.to ? row.to : row.from);
            ChangeKey key{Kind::Move, node, row.to, static_cast<int>(i)};
            if (isShown(row, key))
                m_rows[key] = row;
        }
    }
}

bool SceneEdits::isShown(const StructureRow& row, ChangeKey& key)
{
    const bool isTo = row.to && isBelow(*row.to);
    const bool isFrom = row.from && wasBelow(*row.from);
    if (isTo && isFrom)
        return true;
    key.kind = isTo ? Kind::Insert : Kind::Remove;
    key.place = isTo ? row.to : row.from;
    return (isTo && wasBelow(*row.to)) || (isFrom && isBelow(*row.from));
}

bool SceneEdits::isBelow(const SoNode& node)
{
    return m_places.isBelowRoot(node);
}

std::vector<const SoNode*> SceneEdits::formerParents(const SoNode& node) const
{
    std::vector<const SoNode*> parents;
    std::unordered_map<const SoGroup*, int> counts;
    const std::size_t count = std::min(node.getParents().size(), MostParents);
    for (std::size_t i = 0; i < count; ++i)
        ++counts[node.getParents()[i]];
    for (const auto& [parent, places] : counts) {
        const auto came = m_came.find({&node, const_cast<SoGroup*>(parent)});
        if (came == m_came.end() || came->second < places)
            parents.push_back(parent);
    }
    for (auto at = m_gone.lower_bound({&node, nullptr}); at != m_gone.end() && at->first.first == &node; ++at)
        parents.push_back(at->first.second);
    return parents;
}

bool SceneEdits::wasBelow(const SoNode& node)
{
    if (m_came.empty() && m_gone.empty())
        return isBelow(node);
    std::vector<const SoNode*> pending{&node};
    while (!pending.empty()) {
        const SoNode* next = pending.back();
        if (m_wasBelow.count(next) > 0) {
            pending.pop_back();
            continue;
        }
        bool is = next == m_root;
        const std::size_t before = pending.size();
        for (const SoNode* parent : is ? std::vector<const SoNode*>() : formerParents(*next)) {
            const auto known = m_wasBelow.find(parent);
            if (known != m_wasBelow.end())
                is |= known->second;
            else if (std::find(pending.begin(), pending.end(), parent) == pending.end())
                pending.push_back(parent);
        }
        if (is || pending.size() == before) {
            pending.resize(before - 1);
            m_wasBelow[next] = is;
        }
    }
    return m_wasBelow.at(&node);
}

void SceneEdits::makeList()
{
    ++m_listVersion;
    m_list.clear();
    m_marked.clear();
    std::vector<std::pair<quint64, ChangeKey>> all;
    for (const auto& [field, entry] : m_fields) {
        const SoNode* node = ownerOf(*field);
        if (!stood(*node))
            continue;
        all.emplace_back(entry.number, ChangeKey{Kind::Field, field, nullptr, 0});
        m_marked.insert(node);
    }
    for (const auto& [key, row] : m_rows) {
        all.emplace_back(row.entry ? row.entry->number : m_names.at(row.node).number, key);
        m_marked.insert(key.kind == Kind::Remove ? row.from : row.node);
    }
    std::sort(all.begin(), all.end());
    for (const auto& [number, key] : all)
        m_list.push_back(key);
}

// --- Telling of them

const SceneEdits::FieldEntry* SceneEdits::entryOf(const ChangeKey& key) const
{
    const auto found = key.kind == Kind::Field
                           ? m_fields.find(static_cast<SoField*>(const_cast<void*>(key.subject)))
                           : m_fields.end();
    return found == m_fields.end() ? nullptr : &found->second;
}

const SceneEdits::StructureRow* SceneEdits::rowOf(const ChangeKey& key) const
{
    const auto found = m_rows.find(key);
    return found == m_rows.end() ? nullptr : &found->second;
}

QString SceneEdits::orderText(const ChildrenEdit::Children& children) const
{
    QStringList names;
    for (const SoNode* child : children)
        names << nodeText(*child);
    const QString text = names.join(QStringLiteral(", "));
    return text.size() > TextLimit ? text.left(TextLimit - 1) + QStringLiteral("…") : text;
}

ChangeSource::Text SceneEdits::describe(const ChangeKey& key) const
{
    if (const FieldEntry* entry = entryOf(key)) {
        const SoField& field = entry->edit->field();
        SoScenePath path = m_places.pathOf(*ownerOf(field));
        path.setField(field.getName().getString());
        return {toText(path), entry->edit->formerText(TextLimit), entry->edit->presentText(TextLimit),
                entry->isElsewhere ? tr("Written since by something else than an edit.") : QString(),
                entry->isElsewhere};
    }
    const StructureRow* row = rowOf(key);
    if (!row)
        return {};
    const QString what = nodeText(*row->node);
    switch (key.kind) {
    case Kind::Rename:
        return {toText(m_places.pathOf(*row->node)),
                nameText(m_names.at(row->node).before),
                nameText(row->node->getName()),
                {}};
    case Kind::Insert:
        return {toText(m_places.pathOf(*row->node)), {}, tr("added"), {}};
    case Kind::Remove: {
        SoScenePath path = m_places.pathOf(*row->from);
        path.append({what.toStdString(), 0});
        return {toText(path), what, tr("removed"), {}};
    }
    case Kind::Move:
        return {toText(m_places.pathOf(*row->node)),
                tr("in %1").arg(nodeText(*row->from)),
                tr("moved to %1").arg(nodeText(*row->to)),
                {}};
    default:
        return {toText(m_places.pathOf(*row->node)), orderText(row->entry->edit->before()),
                orderText(row->entry->edit->after()), tr("The order of what it holds.")};
    }
}

quint64 SceneEdits::versionOf(const ChangeKey& key) const
{
    const FieldEntry* entry = entryOf(key);
    return std::max(entry ? entry->version : 0, m_structureVersion);
}

qint64 SceneEdits::timeOf(const ChangeKey& key) const
{
    if (const FieldEntry* entry = entryOf(key))
        return entry->time;
    const StructureRow* row = rowOf(key);
    return !row ? 0 : row->entry ? row->entry->time : m_names.at(row->node).time;
}

int SceneEdits::sizeOf(const ChangeKey& key) const
{
    const FieldEntry* entry = entryOf(key);
    return entry ? entry->edit->countChanged() : 1;
}

void SceneEdits::sortByScene(ChangeKeys& keys) const
{
    const auto order = [this](const ChangeKey& key) -> const FirstPlaces::Order& {
        return m_places.orderOf(*nodeOf(key));
    };
    std::stable_sort(keys.begin(), keys.end(),
                     [&](const ChangeKey& a, const ChangeKey& b) { return order(a) < order(b); });
}

// Of what was removed: where it stood.
SoNode* SceneEdits::nodeOf(const ChangeKey& key) const
{
    if (const FieldEntry* entry = entryOf(key))
        return ownerOf(entry->edit->field());
    const StructureRow* row = rowOf(key);
    return !row ? nullptr : key.kind == Kind::Remove ? row->from : row->node;
}

SoField* SceneEdits::fieldOf(const ChangeKey& key) const
{
    const FieldEntry* entry = entryOf(key);
    return entry ? &entry->edit->field() : nullptr;
}

bool SceneEdits::canSetFormer(const ChangeKey& key) const
{
    const FieldEntry* entry = entryOf(key);
    return entry && countOf(entry->edit->field()) < 0 &&
           !dynamic_cast<const SoSFImage*>(&entry->edit->field());
}

QString SceneEdits::setFormer(const ChangeKey& key, const QString& text)
{
    const FieldEntry* entry = entryOf(key);
    if (!entry || (m_isHeld && m_isHeld()))
        return {};
    SoField& field = entry->edit->field();
    if (!entry->edit->setFormer(text))
        return tr("“%1” cannot be what %2 was: it is no value of a %3.")
            .arg(text, toQString(field.getName()), toQString(field.getTypeId().getName()));
    FieldEntry& changed = m_fields.at(&field);
    if (!std::exchange(changed.isStale, true))
        m_stale.push_back(&field);
    noticeLater();
    return {};
}

QList<SoField*> SceneEdits::fieldsOf(const ChangeKeySet& keys) const
{
    QList<SoField*> fields;
    for (const ChangeKey& key : keys) {
        if (SoField* field = fieldOf(key))
            fields.append(field);
    }
    return fields;
}

void SceneEdits::writeFormer(const std::set<SoField*>& fields)
{
    for (SoField* field : fields) {
        const auto found = m_fields.find(field);
        if (found != m_fields.end())
            found->second.edit->writeFormer();
    }
}

std::size_t SceneEdits::bytes() const
{
    std::size_t sum = 0;
    for (const auto& [field, entry] : m_fields)
        sum += sizeof(entry) + entry.edit->bytes();
    for (const auto& [group, entry] : m_groups)
        sum += sizeof(entry) + NodeBytes * entry.edit->before().size();
    return sum + m_list.size() * sizeof(ChangeKey) + m_names.size() * sizeof(NameEntry);
}

} // namespace scopix
