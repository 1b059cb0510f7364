// SPDX-License-Identifier: MIT
#include <xsg/files/SceneReader.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/base/SoUnknownNode.h>

#include <algorithm>

namespace
{

// How much of a wrong text an error shows.
constexpr std::size_t ShownLength = 40;

std::string shown(std::string_view text)
{
    const std::string_view line = text.substr(0, text.find('\n'));
    return line.size() <= ShownLength ? std::string(line) : std::string(line.substr(0, ShownLength)) + "...";
}

std::string quoted(std::string_view text)
{
    return "\"" + shown(text) + "\"";
}

// A node of an unknown type has whatever field a file names.
SoField* fieldOf(SoNode* node, std::string_view name)
{
    const SbName fieldName{SbString(name)};
    auto* unknown =
        node->getTypeId() == SoUnknownNode::getClassTypeId() ? static_cast<SoUnknownNode*>(node) : nullptr;
    return unknown ? unknown->addField(fieldName) : node->getField(fieldName);
}

bool isOfNodes(const SoField& field)
{
    const SoType type = field.getTypeId();
    return type == SoSFNode::getClassTypeId() || type == SoMFNode::getClassTypeId();
}

} // namespace

int xsg::SceneReader::getLine() const
{
    const auto end = m_text.begin() + static_cast<std::ptrdiff_t>(std::min(m_problemAt, m_text.size()));
    return 1 + static_cast<int>(std::count(m_text.begin(), end, '\n'));
}

int xsg::SceneReader::getColumn() const
{
    const std::size_t end = std::min(m_problemAt, m_text.size());
    const std::size_t newline = end == 0 ? std::string_view::npos : m_text.rfind('\n', end - 1);
    return static_cast<int>(newline == std::string_view::npos ? end + 1 : end - newline);
}

bool xsg::SceneReader::fail(std::size_t at, std::string problem)
{
    m_problemAt = at;
    m_problem = std::move(problem);
    return false;
}

void xsg::SceneReader::skipBlanks()
{
    while (!atEnd()) {
        if (peek() == '#')
            m_at = std::min(m_text.find('\n', m_at), m_text.size());
        else if (xsg::TextReader::isBlank(peek()))
            ++m_at;
        else
            return;
    }
}

bool xsg::SceneReader::accept(char c)
{
    skipBlanks();
    if (atEnd() || peek() != c)
        return false;
    ++m_at;
    return true;
}

std::string_view xsg::SceneReader::readWord()
{
    const std::size_t start = m_at;
    while (!atEnd() && xsg::TextReader::isWordByte(peek()))
        ++m_at;
    return m_text.substr(start, m_at - start);
}

bool xsg::SceneReader::readQuoted(std::string& out)
{
    xsg::TextReader reader(m_text.substr(m_at));
    const std::size_t start = m_at;
    if (!reader.readQuoted(out))
        return fail(start,
                    "the text in quotes that starts here has no end, or an escape that does not exist");
    m_at = m_text.size() - reader.rest().size();
    return true;
}

bool xsg::SceneReader::readFirstLine()
{
    const std::string_view wanted = SoSceneFile::FirstLine;
    const std::string_view line = m_text.substr(0, std::min(m_text.find('\n'), wanted.size() + ShownLength));
    if (line.substr(0, wanted.size()) != wanted || !xsg::trimmed(line.substr(wanted.size())).empty())
        return fail(0, "this is no scene file: its first line must be \"" + std::string(wanted) + "\"");
    m_at = line.size();
    return true;
}

SoRef<SoNode> xsg::SceneReader::read()
{
    if (!readFirstLine())
        return nullptr;
    while (true) {
        skipBlanks();
        if (atEnd())
            break;
        if (m_root && m_open.empty()) {
            fail(m_at, "a file holds one node with everything in it, so its end was expected instead of " +
                           quoted(m_text.substr(m_at)));
            return nullptr;
        }
        if (!readItem())
            return nullptr;
    }
    if (!m_open.empty())
        fail(m_text.size(), "the file ends too early: \"}\" was expected to close the " +
                                std::string(m_open.back().node->getTypeId().getName().getString()));
    else if (!m_root)
        fail(m_text.size(), "the file has no node: a type such as Separator was expected");
    else if (!resolveReferences() || !connect())
        forgetReferences();
    return m_problem.empty() ? m_root : nullptr;
}

bool xsg::SceneReader::readItem()
{
    const std::size_t start = m_at;
    if (accept('}'))
        return m_open.empty() ? fail(start, "\"}\" closes nothing; a node was expected") : closeNode();
    if (peek() == '@')
        return readReference();
    const std::string_view word = readWord();
    if (word.empty())
        return fail(start, std::string(m_open.empty() ? "a node" : "a field, a node or \"}\"") +
                               " was expected instead of " + quoted(m_text.substr(start)));
    if (peek() != ':')
        return openNode(word, start);
    ++m_at;
    if (m_open.empty())
        return fail(start, "a field stands within a node; a node was expected");
    return readField(word, start);
}

bool xsg::SceneReader::openNode(std::string_view typeName, std::size_t at)
{
    if (!m_open.empty() && !m_open.back().node->asGroup())
        return fail(
            at, "a " + std::string(m_open.back().node->getTypeId().getName().getString()) +
                    " has no children; a field such as \"name: value\" or \"}\" was expected instead of " +
                    quoted(typeName));
    std::string name;
    skipBlanks();
    const bool hasName = peek() == '"';
    if (hasName && !readQuoted(name))
        return false;
    std::string_view label;
    if (accept('@')) {
        label = readWord();
        if (label.empty())
            return fail(m_at, "a label was expected after \"@\"");
    }
    if (!accept('{'))
        return fail(m_at, "\"{\" was expected after " + quoted(typeName));
    const SoType type = SoType::fromName(SbName(SbString(typeName)));
    const bool isKnown = type.isDerivedFrom(SoNode::getClassTypeId()) && type.canCreateInstance();
    OpenNode open{isKnown ? static_cast<SoNode*>(type.createInstance())
                          : new SoUnknownNode(SbName(SbString(typeName))),
                  label};
    if (hasName)
        open.node->setName(SbName(SbString(name)));
    m_open.push_back(std::move(open));
    return true;
}

bool xsg::SceneReader::closeNode()
{
    // Children come into their group when they are complete, so that each change passes few groups.
    const OpenNode closed = std::move(m_open.back());
    m_open.pop_back();
    if (!closed.label.empty() && !m_labels.emplace(closed.label, closed.node).second)
        return fail(m_at - 1, "the label @" + std::string(closed.label) + " is already another node's");
    return place(closed.node, m_at);
}

bool xsg::SceneReader::place(const SoRef<SoNode>& node, std::size_t at)
{
    if (m_open.empty()) {
        m_root = node;
        return true;
    }
    SoGroup* group = m_open.back().node->asGroup();
    if (!group)
        return fail(at, "a " + std::string(m_open.back().node->getTypeId().getName().getString()) +
                            " has no children");
    group->addChild(node.get());
    return true;
}

bool xsg::SceneReader::readReference()
{
    const std::size_t start = m_at++;
    const std::string_view label = readWord();
    const auto known = m_labels.find(label);
    if (known == m_labels.end())
        return fail(start,
                    "the label @" + std::string(label) + " is not that of a node that is complete here");
    return place(known->second, start);
}

bool xsg::SceneReader::readField(std::string_view name, std::size_t at)
{
    SoNode* node = m_open.back().node.get();
    SoField* field = fieldOf(node, name);
    if (!field)
        return fail(at, "a " + std::string(node->getTypeId().getName().getString()) + " has no field " +
                            quoted(name) + "; a field of it, a node or \"}\" was expected");
    std::string_view value;
    std::size_t start = 0;
    if (!readValue(value, start))
        return false;
    if (!value.empty() && isOfNodes(*field)) {
        m_nodeValues.push_back({field, value, start});
    } else if (!value.empty()) {
        m_value.edit().assign(value);
        if (!field->set(m_value))
            return refuseValue(*field, value, start);
    }
    return readMarks(field);
}

bool xsg::SceneReader::refuseValue(const SoField& field, std::string_view value, std::size_t at)
{
    // In a file written by hand the next field may well follow on the same line.
    const bool goesOn = value.find(": ") != std::string_view::npos;
    return fail(at, quoted(value) + " is no value of " + field.getName().getString() + ", which is a " +
                        field.getTypeId().getName().getString() +
                        (goesOn ? "; each field has a line of its own" : ""));
}

// The value's text as it stands. It begins on the line of the field's name; where it does not, there is none.
bool xsg::SceneReader::readValue(std::string_view& value, std::size_t& start)
{
    while (peek() != '\n' && xsg::TextReader::isBlank(peek()))
        ++m_at;
    start = m_at;
    const xsg::ValueExtent extent(m_text.substr(start));
    if (!extent.isWhole())
        return fail(start + extent.open, m_text[start + extent.open] == '['
                                             ? "the list that starts here has no \"]\""
                                             : "the text in quotes that starts here has no end");
    m_at = start + extent.length;
    value = xsg::trimmed(m_text.substr(start, extent.length));
    return true;
}

bool xsg::SceneReader::readMarks(SoField* field)
{
    while (true) {
        skipBlanks();
        const std::size_t start = m_at;
        if (accept('!')) {
            if (readWord() != "ignored")
                return fail(start, "\"!ignored\" was expected");
            field->setIgnored(true);
        } else if (accept('<')) {
            Connection wanted{field, {}, {}, start, nullptr, {}};
            if (!accept('-') || !accept('@'))
                return fail(start, "\"<- @label.field\" was expected");
            wanted.label = readWord();
            if (!accept('.'))
                return fail(start, "\"<- @label.field\" was expected");
            wanted.sourceName = readWord();
            m_connections.push_back(wanted);
        } else {
            return true;
        }
    }
}

// A field may refer to a node that comes later, so all references are made at the end.
bool xsg::SceneReader::resolveReferences()
{
    for (const NodeValue& wanted : m_nodeValues) {
        xsg::TextReader in(wanted.text);
        auto* list = dynamic_cast<SoMFNode*>(wanted.field);
        const bool isList = list && in.accept('[');
        std::vector<SoRef<SoNode>> nodes;
        in.skipBlanks();
        while (isList ? !in.accept(']') : nodes.empty()) {
            if (!readNode(in, nodes.emplace_back()))
                return refuseValue(*wanted.field, wanted.text, wanted.at);
            if (isList)
                in.skipSeparator();
        }
        if (!in.onlyBlanksLeft())
            return refuseValue(*wanted.field, wanted.text, wanted.at);
        if (list)
            list->setValues(std::move(nodes));
        else
            static_cast<SoSFNode*>(wanted.field)->setValue(nodes.front());
    }
    return true;
}

// A scene that is given up must not keep itself alive.
void xsg::SceneReader::forgetReferences()
{
    for (const NodeValue& wanted : m_nodeValues) {
        if (auto* list = dynamic_cast<SoMFNode*>(wanted.field))
            list->setNum(0);
        else
            static_cast<SoSFNode*>(wanted.field)->setValue(nullptr);
    }
}

bool xsg::SceneReader::readNode(xsg::TextReader& in, SoRef<SoNode>& node) const
{
    if (!in.accept('@'))
        return xsg::ValueText<SoRef<SoNode>>::read(in, node) && in.atValueEnd();
    const auto known = m_labels.find(in.readWord());
    if (known == m_labels.end() || !in.atValueEnd())
        return false;
    node = known->second;
    return true;
}

// A connection may name a node that comes later, so all are made at the end.
bool xsg::SceneReader::connect()
{
    for (Connection& wanted : m_connections) {
        const auto node = m_labels.find(wanted.label);
        wanted.source = node == m_labels.end() ? nullptr : fieldOf(node->second.get(), wanted.sourceName);
        if (!wanted.source)
            return fail(wanted.at, "there is no field @" + std::string(wanted.label) + "." +
                                       std::string(wanted.sourceName) + " to connect from");
        if (!wanted.field->isDefault())
            wanted.field->get(wanted.value);
    }
    for (const Connection* wanted : sourcesFirst()) {
        if (!wanted->field->connectFrom(wanted->source))
            return fail(wanted->at, std::string(wanted->field->getName().getString()) +
                                        " cannot be connected from a " +
                                        std::string(wanted->source->getTypeId().getName().getString()) +
                                        ", or would in the end be connected from itself");
    }
    // A connected field may have been written since its source last changed, and then keeps that value.
    for (const Connection& made : m_connections) {
        if (!made.value.isNull())
            made.field->setWithoutPropagation(made.value);
    }
    return true;
}

// A field that is connected notifies its dependents. In this order it has none yet, however long the chain
// is.
std::vector<const xsg::SceneReader::Connection*> xsg::SceneReader::sourcesFirst() const
{
    std::unordered_map<const SoField*, const Connection*> pending;
    for (const Connection& connection : m_connections)
        pending[connection.field] = &connection;
    std::vector<const Connection*> ordered;
    std::vector<const Connection*> row;
    for (const Connection& connection : m_connections) {
        for (auto next = pending.find(connection.field); next != pending.end();
             next = pending.find(row.back()->source)) {
            row.push_back(next->second);
            pending.erase(next);
        }
        ordered.insert(ordered.end(), row.rbegin(), row.rend());
        row.clear();
    }
    return ordered;
}
