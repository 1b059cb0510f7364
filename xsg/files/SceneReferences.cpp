// SPDX-License-Identifier: MIT
#include <xsg/files/SceneReferences.h>

#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>

#include <algorithm>
#include <functional>

bool xsg::SceneReferences::addLabel(const std::string& label, const SoRef<SoNode>& node)
{
    return m_labels.emplace(label, node).second;
}

SoNode* xsg::SceneReferences::find(const std::string& label) const
{
    if (!m_numbered) {
        const auto known = m_labels.find(label);
        return known == m_labels.end() ? nullptr : known->second.get();
    }
    std::size_t place = 0;
    const bool isNumber = xsg::TextReader(label).readNumber(place);
    return isNumber && place < m_numbered->size() ? (*m_numbered)[place] : nullptr;
}

void xsg::SceneReferences::addNodes(SoField* field, std::string text, Place place)
{
    m_nodeValues.push_back({field, std::move(text), place});
}

void xsg::SceneReferences::addConnection(SoField* field, std::string label, SbName sourceName, Place place)
{
    m_connections.push_back({field, std::move(label), std::move(sourceName), place, nullptr, {}});
}

bool xsg::SceneReferences::step()
{
    switch (m_phase) {
    case Phase::Nodes: // a field may refer to a node that comes later, so all references are made at the end
        return nextOf(m_nodeValues, Phase::Sources, &SceneReferences::resolve);
    case Phase::Sources: // and so are all connections
        return nextOf(m_connections, Phase::Order,
                      static_cast<bool (SceneReferences::*)(Connection&)>(&SceneReferences::findSource));
    case Phase::Order:
        return nextOf(m_connections, Phase::Connections, &SceneReferences::orderSourcesFirst);
    case Phase::Connections:
        return nextOf(m_sourcesFirst, Phase::Values,
                      static_cast<bool (SceneReferences::*)(const Connection*)>(&SceneReferences::connect));
    case Phase::Values:
        return nextOf(m_connections, Phase::Done, &SceneReferences::restoreValue);
    case Phase::Done:
        break;
    }
    return true;
}

template <class Items, class Act>
bool xsg::SceneReferences::nextOf(Items& items, Phase after, Act act)
{
    if (m_next < items.size())
        return std::invoke(act, *this, items[m_next++]);
    m_next = 0;
    m_phase = after;
    return true;
}

bool xsg::SceneReferences::resolve(const NodeValue& wanted)
{
    xsg::TextReader in(wanted.text);
    auto* list = dynamic_cast<SoMFNode*>(wanted.field);
    const bool isList = list && in.accept('[');
    std::vector<SoRef<SoNode>> nodes;
    in.skipBlanks();
    while (isList ? !in.accept(']') : nodes.empty()) {
        if (!readNode(in, nodes.emplace_back()))
            return m_fault.refuse(wanted.place, *wanted.field, wanted.text);
        if (isList)
            in.skipSeparator();
    }
    if (!in.onlyBlanksLeft())
        return m_fault.refuse(wanted.place, *wanted.field, wanted.text);
    if (list)
        list->setValues(std::move(nodes));
    else
        static_cast<SoSFNode*>(wanted.field)->setValue(nodes.front());
    return true;
}

void xsg::SceneReferences::release()
{
    const bool isBegun = m_phase != Phase::Nodes || m_next > 0;
    if (m_numbered || !isBegun)
        return;
    for (const NodeValue& wanted : m_nodeValues) {
        if (auto* list = dynamic_cast<SoMFNode*>(wanted.field))
            list->setNum(0);
        else
            static_cast<SoSFNode*>(wanted.field)->setValue(nullptr);
    }
}

bool xsg::SceneReferences::readNode(xsg::TextReader& in, SoRef<SoNode>& node) const
{
    if (!in.accept('@'))
        return xsg::ValueText<SoRef<SoNode>>::read(in, node) && in.atValueEnd();
    node = find(std::string(in.readWord()));
    return node && in.atValueEnd();
}

bool xsg::SceneReferences::findSource(Connection& wanted)
{
    SoNode* node = find(wanted.label);
    wanted.source = node ? fieldOf(node, wanted.sourceName) : nullptr;
    if (!wanted.source)
        return m_fault.set(wanted.place, SbSentence("there is no field @%1.%2 to connect from", wanted.label,
                                                    wanted.sourceName.getString()));
    if (!wanted.field->isDefault())
        wanted.field->get(wanted.value);
    m_unordered[wanted.field] = &wanted;
    return true;
}

// A field that is connected notifies its dependents. In this order it has none yet, however long the chain
// is.
bool xsg::SceneReferences::orderSourcesFirst(const Connection& connection)
{
    const std::size_t before = m_sourcesFirst.size();
    for (auto next = m_unordered.find(connection.field); next != m_unordered.end();
         next = m_unordered.find(m_sourcesFirst.back()->source)) {
        m_sourcesFirst.push_back(next->second);
        m_unordered.erase(next);
    }
    std::reverse(m_sourcesFirst.begin() + static_cast<std::ptrdiff_t>(before), m_sourcesFirst.end());
    return true;
}

bool xsg::SceneReferences::connect(const Connection* wanted)
{
    return wanted->field->connectFrom(wanted->source) ||
           m_fault.set(
               wanted->place,
               SbSentence("%1 cannot be connected from a %2, or would in the end be connected from itself",
                          wanted->field->getName().getString(),
                          wanted->source->getTypeId().getName().getString()));
}

// A connected field may have been written since its source last changed, and then keeps that value.
bool xsg::SceneReferences::restoreValue(const Connection& made)
{
    if (!made.value.isNull())
        made.field->setWithoutPropagation(made.value);
    return true;
}

SoField* xsg::SceneReferences::findSource()
{
    Connection& only = m_connections.front();
    return findSource(only) ? only.source : nullptr;
}

// By names that find the nodes while they live.
bool xsg::SceneReferences::textOfNodes(SbString& text)
{
    if (m_nodeValues.empty())
        return true;
    const NodeValue& wanted = m_nodeValues.front();
    SoSFNode single;
    SoMFNode list;
    SoField& field = dynamic_cast<SoMFNode*>(wanted.field) ? static_cast<SoField&>(list) : single;
    if (!resolve({&field, wanted.text, wanted.place}))
        return false;
    field.get(text);
    return true;
}
