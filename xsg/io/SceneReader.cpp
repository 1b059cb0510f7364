#include <xsg/io/SceneReader.h>

#include <xsg/base/XsgText.h>
#include <xsg/io/SoSceneFile.h>
#include <xsg/nodes/SoUnknownNode.h>

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

std::string_view trimmedRight(std::string_view text)
{
    while (!text.empty() && XsgTextReader::isBlank(text.back()))
        text.remove_suffix(1);
    return text;
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
        else if (XsgTextReader::isBlank(peek()))
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
    while (!atEnd() && XsgTextReader::isWordByte(peek()))
        ++m_at;
    return m_text.substr(start, m_at - start);
}

bool xsg::SceneReader::readQuoted(std::string& out)
{
    XsgTextReader reader(m_text.substr(m_at));
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
    if (trimmedRight(line) != wanted)
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
    else
        connect();
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
    return m_open.back().unknown ? readUnknownField(m_text.substr(start, m_at - start))
                                 : readField(word, start);
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
    OpenNode open{nullptr, nullptr, label};
    if (type.isDerivedFrom(SoNode::getClassTypeId()) && type.canCreateInstance()) {
        open.node = SoRef<SoNode>(static_cast<SoNode*>(type.createInstance()));
    } else {
        open.unknown = new SoUnknownNode;
        open.node = SoRef<SoNode>(open.unknown);
        open.unknown->typeName.setValue(SbString(typeName));
    }
    if (hasName)
        open.node->setName(SbName(SbString(name)));
    m_open.push_back(std::move(open));
    return true;
}

bool xsg::SceneReader::closeNode()
{
    // Children come into their group when they are complete, so that no change has far to go.
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
    SoField* field = node->getField(SbName(SbString(name)));
    if (!field)
        return fail(at, "a " + std::string(node->getTypeId().getName().getString()) + " has no field " +
                            quoted(name) + "; a field of it, a node or \"}\" was expected");
    skipBlanks();
    const std::size_t start = m_at;
    std::string_view value;
    if (!readValue(value))
        return false;
    if (!value.empty()) {
        m_value.edit().assign(value);
        if (!field->set(m_value))
            return fail(start, quoted(value) + " is no value of " + std::string(name) + ", which is a " +
                                   field->getTypeId().getName().getString());
    }
    return readMarks(field);
}

bool xsg::SceneReader::readUnknownField(std::string_view nameAndColon)
{
    std::string_view value;
    skipBlanks();
    if (!readValue(value))
        return false;
    const std::size_t marks = m_at;
    if (!readMarks(nullptr))
        return false;
    const std::string ignored =
        m_text.substr(marks, m_at - marks).find("!ignored") == std::string_view::npos ? "" : " !ignored";
    SoMFString& contents = m_open.back().unknown->contents;
    contents.set1Value(contents.getNum(),
                       SbString(std::string(nameAndColon) + ' ' + std::string(value) + ignored));
    return true;
}

// The value's text as it stands: a list up to its bracket, anything else up to the line's end, a mark or a
// brace.
bool xsg::SceneReader::readValue(std::string_view& value)
{
    const std::size_t start = m_at;
    if (peek() == '[') {
        if (!skipList())
            return false;
    } else {
        while (!atEnd() && peek() != '\n' && peek() != '!' && peek() != '<' && peek() != '}' &&
               peek() != '#') {
            if (peek() == '"') {
                if (!skipQuoted())
                    return false;
            } else {
                ++m_at;
            }
        }
    }
    value = trimmedRight(m_text.substr(start, m_at - start));
    return true;
}

bool xsg::SceneReader::skipList()
{
    const std::size_t start = m_at;
    while (!atEnd() && peek() != ']') {
        if (peek() != '"')
            ++m_at;
        else if (!skipQuoted())
            return false;
    }
    return accept(']') || fail(start, "the list that starts here has no \"]\"");
}

bool xsg::SceneReader::skipQuoted()
{
    const std::size_t start = m_at++;
    while (!atEnd() && peek() != '"')
        m_at += peek() == '\\' ? 2 : 1;
    return accept('"') || fail(start, "the text in quotes that starts here has no end");
}

bool xsg::SceneReader::readMarks(SoField* field)
{
    while (true) {
        skipBlanks();
        const std::size_t start = m_at;
        if (accept('!')) {
            if (readWord() != "ignored")
                return fail(start, "\"!ignored\" was expected");
            if (field)
                field->setIgnored(true);
        } else if (accept('<')) {
            Connection wanted{field, {}, {}, start, {}};
            if (!accept('-') || !accept('@'))
                return fail(start, "\"<- @label.field\" was expected");
            wanted.label = readWord();
            if (!accept('.'))
                return fail(start, "\"<- @label.field\" was expected");
            wanted.master = readWord();
            if (field)
                m_connections.push_back(wanted);
        } else {
            return true;
        }
    }
}

// A connection may name a node that comes later, so all are made at the end.
bool xsg::SceneReader::connect()
{
    for (Connection& wanted : m_connections) {
        const auto node = m_labels.find(wanted.label);
        SoField* master =
            node == m_labels.end() ? nullptr : node->second->getField(SbName(SbString(wanted.master)));
        if (!master)
            return fail(wanted.at, "there is no field @" + std::string(wanted.label) + "." +
                                       std::string(wanted.master) + " to connect from");
        if (!wanted.field->isDefault())
            wanted.field->get(wanted.value);
        if (!wanted.field->connectFrom(master))
            return fail(wanted.at, std::string(wanted.field->getName().getString()) +
                                       " cannot be connected from a " +
                                       std::string(master->getTypeId().getName().getString()) +
                                       ", or would in the end be connected from itself");
    }
    restoreWrittenValues();
    return true;
}

// A connected field may have been written since its master last changed, and then keeps that value. Masters
// go first, since writing one tells those that follow it to fetch its value.
void xsg::SceneReader::restoreWrittenValues()
{
    const auto distance = [](const Connection& connection) {
        int steps = 0;
        for (const SoField* f = connection.field; f; f = f->getConnectedField())
            ++steps;
        return steps;
    };
    std::vector<std::pair<int, const Connection*>> ordered;
    for (const Connection& connection : m_connections) {
        if (!connection.value.isNull())
            ordered.emplace_back(distance(connection), &connection);
    }
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [steps, connection] : ordered)
        connection->field->set(connection->value);
}
