// SPDX-License-Identifier: MIT
#include <xsg/changes/FieldApplication.h>

#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/paths/NodeLabel.h>

namespace xsg
{

namespace
{

// A node of an unknown type has whatever field a patch names.
SoField* fieldOf(SoNode& node, const std::string& name)
{
    if (node.getTypeId() == SoUnknownNode::getClassTypeId())
        return static_cast<SoUnknownNode&>(node).addField(SbName(SbString(name)));
    return node.getField(SbName(SbString(name)));
}

std::string textOf(const SoField& field)
{
    SbString text;
    field.get(text);
    return text.str();
}

} // namespace

void FieldApplication::misfit(Item& item, const SbSentence& reason)
{
    item.isDone = true;
    m_misfits.emplace_back(item.change, reason);
}

bool FieldApplication::add(const SceneChange& change, SbSentence& problem)
{
    SoNode* node = m_lookup.find(change.path.withoutField(), problem);
    if (!node)
        return false;
    Item item{&change, fieldOf(*node, change.path.getField()), nullptr, {}};
    if (!item.field) {
        problem = SbSentence("a %1 has no such field", typeNameOf(*node).getString());
        return false;
    }
    if (!findValue(item, problem))
        return false;
    m_items.push_back(std::move(item));
    return true;
}

// Once all fields that nodes of unknown types are given have come, in their order.
void FieldApplication::findSource(Item& item)
{
    SbSentence problem;
    SoNode* source = m_lookup.find(item.change->source->withoutField(), problem);
    if (source)
        item.source = fieldOf(*source, item.change->source->getField());
    if (!item.source)
        misfit(item, SbSentence("there is no field %1 to follow", item.change->source->toText()));
}

bool FieldApplication::findValue(Item& item, SbSentence& problem)
{
    if (!item.change->value)
        return true;
    std::string text = *item.change->value;
    const bool isOfNodes = dynamic_cast<SoSFNode*>(item.field) || dynamic_cast<SoMFNode*>(item.field);
    if (isOfNodes && !textOfNodes(item, text, problem))
        return false;
    item.value = SbString(std::move(text));
    return true;
}

// As a field writes it that stands alone: by names that find the nodes while they live.
bool FieldApplication::textOfNodes(const Item& item, std::string& text, SbSentence& problem)
{
    TextReader in(text);
    in.skipBlanks();
    const bool isList = dynamic_cast<SoMFNode*>(item.field) && in.accept('[');
    SoMFNode nodes;
    in.skipBlanks();
    for (int i = 0; isList ? !in.accept(']') : i == 0; ++i) {
        SoScenePath path;
        const bool isNone = in.rest().substr(0, 4) == "NULL";
        SoNode* node = nullptr;
        if (isNone)
            in.skip(4);
        else if (!SoScenePath::read(in, path, problem) || !(node = m_lookup.find(path, problem)))
            return false;
        nodes.set1Value(i, SoRef<SoNode>(node));
        in.skipSeparator();
    }
    SoSFNode single;
    if (!isList && nodes.getNum() > 0)
        single.setValue(nodes[0]);
    const SoField& field = isList ? static_cast<SoField&>(nodes) : single;
    text = textOf(field);
    problem = SbSentence("the end of the value was expected");
    return in.onlyBlanksLeft();
}

bool FieldApplication::isSame(const Item& item) const
{
    const SoField& field = *item.field;
    field.evaluate();
    return field.isDefault() == item.value.isNull() && field.isIgnored() == item.change->isIgnored &&
           field.getConnectedField() == item.source &&
           (item.value.isNull() || textOf(field) == item.value.str());
}

bool FieldApplication::reset(SoField& field)
{
    const auto* node = static_cast<SoNode*>(field.getContainer());
    if (node->getTypeId() == SoUnknownNode::getClassTypeId()) {
        field.set("\"\"");
    } else {
        SoRef<SoNode>& fresh = m_fresh[node->getTypeId().getName().getString()];
        if (!fresh)
            fresh = static_cast<SoNode*>(node->getTypeId().createInstance());
        const SoField* value = fresh ? fresh->getField(field.getName()) : nullptr;
        if (!value || !field.copyFrom(*value))
            return false;
    }
    field.setDefault(true);
    return true;
}

bool FieldApplication::write(Item& item, bool propagates)
{
    const bool good = item.value.isNull() ? reset(*item.field)
                      : propagates        ? item.field->set(item.value)
                                          : item.field->setWithoutPropagation(item.value);
    if (!good)
        misfit(item, item.value.isNull()
                         ? SbSentence("there is no default value")
                         : SbSentence("\"%1\" is no value of a %2", item.value.str().substr(0, 60),
                                      item.field->getTypeId().getName().getString()));
    return good;
}

void FieldApplication::setElement(Item& item)
{
    auto* list = dynamic_cast<SoMField*>(item.field);
    const int index = item.change->path.getIndex();
    SbString before;
    if (!list || index >= list->getNum())
        return misfit(item, list ? SbSentence("the list has %1 values", list->getNum())
                                 : SbSentence("it is no list"));
    list->get1(index, before);
    item.wasSame = before == item.value;
    if (!item.wasSame && !list->set1(index, item.value))
        misfit(item, SbSentence("\"%1\" is no value of it", item.value.str().substr(0, 60)));
}

void FieldApplication::setPlain(Item& item)
{
    if (item.change->path.getIndex() >= 0)
        return setElement(item);
    if (item.source || item.wasSame || !write(item, true))
        return;
    item.field->setIgnored(item.change->isIgnored);
}

void FieldApplication::settleConnected(Item& item)
{
    item.field->evaluate();
    if (!write(item, false))
        return;
    if (item.field->isIgnored() != item.change->isIgnored)
        item.field->setIgnored(item.change->isIgnored);
}

void FieldApplication::apply()
{
    for (Item& item : m_items)
        if (item.change->source)
            findSource(item);
    for (Item& item : m_items) {
        if (item.isDone)
            continue;
        item.wasSame = item.change->path.getIndex() < 0 && isSame(item);
        if (item.change->path.getIndex() >= 0 || item.field->getConnectedField() == item.source)
            continue;
        if (m_watch)
            m_watch->aboutToConnect(*item.field);
        item.field->disconnect();
    }
    for (Item& item : m_items)
        if (!item.isDone)
            setPlain(item);
    for (Item& item : m_items)
        if (!item.isDone && item.source && item.field->getConnectedField() != item.source &&
            !item.field->connectFrom(item.source))
            misfit(item, SbSentence("it cannot follow %1", item.change->source->toText()));
    for (Item& item : m_items)
        if (!item.isDone && item.source)
            settleConnected(item);
    for (const Item& item : m_items)
        if (!item.isDone)
            ++(item.wasSame ? m_alreadySo : m_applied);
}

} // namespace xsg
