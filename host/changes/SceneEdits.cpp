// SPDX-License-Identifier: MIT
#include "changes/SceneEdits.h"

#include "changes/EditedField.h"
#include "undo/FieldEdit.h"
#include "undo/UndoHistory.h"

#include <QDateTime>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr std::size_t NodeBytes = 16;

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
    m_connected.clear();
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

SceneEdits::FieldEntry& SceneEdits::entryFor(SoField& field)
{
    FieldEntry& entry = m_fields[&field];
    if (!entry.edit) {
        entry.edit = std::make_unique<FieldEdit>(field);
        entry.number = ++m_number;
        m_fieldsOf[field.getContainer()].push_back(&field);
        m_stale.push_back(&field);
    } else if (!std::exchange(entry.isStale, true)) {
        m_stale.push_back(&field);
    }
    return entry;
}

void SceneEdits::noteEdit(SoField& field, FieldEntry& entry)
{
    entry.time = QDateTime::currentMSecsSinceEpoch();
    m_announced = &field;
    noticeLater();
}

void SceneEdits::aboutToWrite(SoField& field, int start, int removed)
{
    if (!m_root || !ownerOf(field) || (m_isHeld && m_isHeld()))
        return;
    FieldEntry& entry = entryFor(field);
    entry.edit->aboutToWrite(start, removed);
    noteEdit(field, entry);
}

void SceneEdits::aboutToConnect(SoField& field)
{
    if (!m_root || !ownerOf(field) || (m_isHeld && m_isHeld()))
        return;
    FieldEntry& entry = entryFor(field);
    entry.edit->aboutToWrite(0, -1);
    if (!std::exchange(entry.isConnected, true))
        entry.source = field.getConnectedField();
    m_connected.insert(&field);
    noteEdit(field, entry);
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
    // What a field fetches that an edit has connected is the edit's.
    if (m_announced == change.field || (entry.isConnected && change.field->isConnected())) {
        if (m_announced != change.field && !std::exchange(entry.isStale, true))
            m_stale.push_back(change.field);
        noticeLater();
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
    forgetSources(container);
    std::vector<FieldEntry> dropped;
    if (const auto found = m_fieldsOf.find(container); found != m_fieldsOf.end()) {
        for (SoField* field : found->second) {
            m_stale.erase(std::remove(m_stale.begin(), m_stale.end(), field), m_stale.end());
            m_connected.erase(field);
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

// What a field followed that has gone with its node cannot be followed again.
void SceneEdits::forgetSources(const SoFieldContainer* container)
{
    for (SoField* field : m_connected) {
        FieldEntry& entry = m_fields.at(field);
        if (entry.source && entry.source->getContainer() == container)
            entry.source = nullptr;
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
