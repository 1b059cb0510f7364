// SPDX-License-Identifier: MIT
#include <xsg/changes/FieldDiff.h>

#include <xsg/fields/SoSFImage.h>
#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/paths/FieldText.h>

#include <algorithm>

namespace xsg
{

namespace
{

constexpr std::size_t ShownBytes = 60;
// Of a list that differs in few values, these are written one by one.
constexpr int MostElements = 16;
// A longer one is not even made text of.
constexpr int ShownValues = 12;

const SoField& restOf(const SoField& field)
{
    return SoAnimatedValues::getInstance().getRest(field);
}

std::string wasText(const SoField& field)
{
    if (field.isDefault())
        return "the default";
    if (const auto* list = dynamic_cast<const SoMField*>(&field); list && list->getNum() > ShownValues)
        return std::to_string(list->getNum()) + " values";
    if (dynamic_cast<const SoSFImage*>(&field))
        return "another picture";
    SbString text;
    restOf(field).get(text);
    return shownText(text.str());
}

} // namespace

std::string shownText(std::string text)
{
    for (char& c : text)
        c = static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    if (text.size() <= ShownBytes)
        return text;
    text.resize(ShownBytes);
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0U) == 0x80U)
        text.pop_back();
    if (!text.empty() && static_cast<unsigned char>(text.back()) >= 0xC0U)
        text.pop_back();
    return text + "...";
}

void FieldDiff::compare(const SoNode* before, const SoNode& after, SceneChanges& changes)
{
    const auto oldField = [&](const SoField& field) {
        return before ? before->getField(field.getName()) : nullptr;
    };
    // Nodes of one class have their fields in one order.
    const SoField* next = before ? before->getFieldData()->getField(before, 0) : nullptr;
    forEachField(after, [&](const SoField& field) {
        const SoField* old = next && next->getName() == field.getName() ? next : oldField(field);
        next = old ? before->getFieldData()->getNext(old) : nullptr;
        compareField(old, field, changes);
    });
    if (!before || before->getFieldData()->getNumFields() == 0)
        return;
    forEachField(*before, [&](const SoField& field) {
        if (!isWritten(field) || after.getField(field.getName()))
            return;
        SceneChange& change = changes.emplace_back();
        change.path = m_match.after().pathOf(after);
        change.path.setField(field.getName().getString());
        change.was = wasText(field);
    });
}

SoScenePath FieldDiff::pathOf(const SoField& after)
{
    SoScenePath path = m_match.after().pathOf(static_cast<const SoNode&>(*after.getContainer()));
    path.setField(after.getName().getString());
    return path;
}

void FieldDiff::compareField(const SoField* before, const SoField& after, SceneChanges& changes)
{
    after.evaluate();
    if (before)
        before->evaluate();
    if (!differs(before, after) && !mustKeepValue(after))
        return;
    SoScenePath place = pathOf(after);
    if (before && addElements(*before, after, place, changes))
        return;
    SceneChange& change = changes.emplace_back();
    change.path = std::move(place);
    if (!after.isDefault())
        change.value = fieldText(after, m_match.after());
    change.isIgnored = after.isIgnored();
    if (const SoField* source = sourceIn(m_match.after(), after))
        change.source = pathOf(*source);
    if (before)
        change.was = wasText(*before);
}

// Connections from outside of a scene are not in its file.
const SoField* FieldDiff::sourceIn(const NodePlaces& places, const SoField& field) const
{
    const SoField* source = field.getConnectedField();
    const auto* node = source ? dynamic_cast<const SoNode*>(source->getContainer()) : nullptr;
    return node && places.has(*node) ? source : nullptr;
}

const SoField* FieldDiff::oldOf(const SoField& after) const
{
    const SoNode* node = m_match.oldOf(static_cast<const SoNode&>(*after.getContainer()));
    return node ? node->getField(after.getName()) : nullptr;
}

bool FieldDiff::differs(const SoField* before, const SoField& after)
{
    if (!before)
        return isWritten(after);
    return before->isDefault() != after.isDefault() || before->isIgnored() != after.isIgnored() ||
           !isSameSource(*before, after) || (!after.isDefault() && !isSameValue(*before, after));
}

bool FieldDiff::isSameSource(const SoField& before, const SoField& after) const
{
    if (!before.isConnected() && !after.isConnected())
        return true;
    const SoField* oldSource = sourceIn(const_cast<NodeMatch&>(m_match).before(), before);
    const SoField* newSource = sourceIn(const_cast<NodeMatch&>(m_match).after(), after);
    return !oldSource == !newSource && (!newSource || oldOf(*newSource) == oldSource);
}

bool FieldDiff::isSameReference(const SoNode* before, const SoNode* after) const
{
    const bool isOld = before && m_match.before().has(*before);
    const bool isNew = after && m_match.after().has(*after);
    return isOld == isNew && (!isNew || m_match.oldOf(*after) == before);
}

bool FieldDiff::isSameValue(const SoField& before, const SoField& after) const
{
    if (const auto* single = dynamic_cast<const SoSFNode*>(&after))
        return isSameReference(static_cast<const SoSFNode&>(before).getNode(), single->getNode());
    const auto* list = dynamic_cast<const SoMFNode*>(&after);
    if (!list)
        return restOf(before).isSame(restOf(after));
    const auto& old = static_cast<const SoMFNode&>(before);
    bool isSame = old.getNum() == list->getNum();
    for (int i = 0; isSame && i < list->getNum(); ++i)
        isSame = isSameReference(old[i].get(), (*list)[i].get());
    return isSame;
}

// A connected field that was written since its source changed has a value of its own; a change of the source
// would overwrite it.
bool FieldDiff::mustKeepValue(const SoField& after)
{
    for (const SoField* source = sourceIn(m_match.after(), after); source;
         source = sourceIn(m_match.after(), *source)) {
        source->evaluate();
        const SoField* old = oldOf(*source);
        if (old)
            old->evaluate();
        if (differs(old, *source))
            return true;
    }
    return false;
}

bool FieldDiff::addElements(const SoField& before, const SoField& after, const SoScenePath& path,
                            SceneChanges& changes) const
{
    const auto* list = dynamic_cast<const SoMField*>(&restOf(after));
    const auto* old = dynamic_cast<const SoMField*>(&restOf(before));
    if (!list || !old || dynamic_cast<const SoMFNode*>(list) || list->getNum() != old->getNum() ||
        list->getNum() < 2 || after.isDefault() || before.isDefault() || after.isConnected() ||
        before.isConnected() || after.isIgnored() != before.isIgnored())
        return false;
    std::vector<int> changed;
    for (int i = 0; i < list->getNum(); ++i) {
        if (list->isSameValue(i, *old, i))
            continue;
        changed.push_back(i);
        if (changed.size() > MostElements || 2 * static_cast<int>(changed.size()) > list->getNum())
            return false;
    }
    for (const int index : changed) {
        SceneChange& change = changes.emplace_back();
        change.path = path;
        change.path.setField(path.getField(), index);
        change.isIgnored = false;
        SbString text;
        list->get1(index, text);
        change.value = text.str();
        old->get1(index, text);
        change.was = shownText(text.str());
    }
    return !changed.empty();
}

} // namespace xsg
