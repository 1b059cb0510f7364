// SPDX-License-Identifier: MIT
// What SceneEdits tells of each change.
#include "changes/EditedField.h"
#include "changes/SceneEdits.h"
#include "text/NodeText.h"
#include "undo/FieldEdit.h"

#include <xsg/fields/SoSFImage.h>

#include <algorithm>

namespace scopix
{

namespace
{

using Kind = ChangeKey::Kind;

constexpr int TextLimit = 80;

QString toText(const SoScenePath& path)
{
    return QString::fromStdString(path.toText());
}

QString nameText(SbName name)
{
    return name.getLength() > 0 ? SceneEdits::tr("“%1”").arg(toQString(name)) : SceneEdits::tr("no name");
}

} // namespace

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

// A value, and what it follows.
QString SceneEdits::withSource(const QString& value, const SoField* source) const
{
    const SoNode* node = source ? ownerOf(*source) : nullptr;
    if (!node)
        return value;
    SoScenePath path = m_places.isBelowRoot(*node) ? m_places.pathOf(*node) : SoScenePath::ofLabel(*node);
    path.setField(source->getName().getString());
    return tr("%1, follows %2").arg(value, toText(path));
}

ChangeSource::Text SceneEdits::describe(const ChangeKey& key) const
{
    if (const FieldEntry* entry = entryOf(key)) {
        const SoField& field = entry->edit->field();
        SoScenePath path = m_places.pathOf(*ownerOf(field));
        path.setField(field.getName().getString());
        QString before = entry->edit->formerText(TextLimit);
        QString after = entry->edit->presentText(TextLimit);
        if (hasOtherSource(*entry, field)) {
            before = withSource(before, entry->source);
            after = withSource(after, field.getConnectedField());
        }
        return {toText(path), before, after,
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
    return entry ? std::max(entry->edit->countChanged(), hasOtherSource(*entry, entry->edit->field()) ? 1 : 0)
                 : 1;
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

} // namespace scopix
