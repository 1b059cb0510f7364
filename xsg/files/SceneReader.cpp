// SPDX-License-Identifier: MIT
#include <xsg/files/SceneReader.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/support/WorkPieces.h>

#include <algorithm>
#include <system_error>

namespace
{

// What some editors put before a text.
constexpr std::string_view ByteOrderMark = "\xef\xbb\xbf";
// Longer values are read by another thread, as far as the reader is given little time.
constexpr std::size_t LongValue = std::size_t{1} << 20U;
// The text of a value is in memory as a whole.
constexpr std::size_t LongestValue = std::size_t{1} << 30U;
constexpr std::size_t LongestWord = std::size_t{64} << 10U;
// Are skipped, in blanks or a comment, before what was passed is given back.
constexpr std::size_t MostBlanks = std::size_t{64} << 10U;
constexpr std::size_t LargestPiece = std::size_t{16} << 20U;

std::string typeOf(const SoNode& node)
{
    return node.getTypeId().getName().getString();
}

bool isOfNodes(const SoField& field)
{
    const SoType type = field.getTypeId();
    return type == SoSFNode::getClassTypeId() || type == SoMFNode::getClassTypeId();
}

} // namespace

xsg::SceneReader::~SceneReader()
{
    if (m_phase != Phase::Done || m_root)
        m_references.release();
}

bool xsg::SceneReader::fail(std::size_t at, const SbSentence& problem)
{
    if (m_text.isCutShort() && m_phase != Phase::FirstLine)
        return m_fault.set(
            m_text.placeOf(m_text.getEnd()),
            SbSentence("a byte 0 stands here, which a text has not: the file is damaged, or no scene"));
    return m_fault.set(m_text.placeOf(at), problem);
}

void xsg::SceneReader::skipBlanks()
{
    while (!skipSomeBlanks()) {
    }
}

// False where there may be more of them.
bool xsg::SceneReader::skipSomeBlanks()
{
    for (const std::size_t most = m_at + MostBlanks; m_at < most; ++m_at) {
        const char c = peek();
        m_isInComment = c != '\n' && (m_isInComment || c == '#') && !atEnd();
        if (atEnd() || (!m_isInComment && !xsg::TextReader::isBlank(c)))
            return true;
    }
    return false;
}

bool xsg::SceneReader::accept(char c)
{
    skipBlanks();
    if (atEnd() || peek() != c)
        return false;
    ++m_at;
    return true;
}

std::string xsg::SceneReader::readWord()
{
    const std::size_t start = m_at;
    while (m_at - start < LongestWord && !atEnd() && xsg::TextReader::isWordByte(peek()))
        ++m_at;
    return std::string(m_text.from(start).substr(0, m_at - start));
}

bool xsg::SceneReader::readQuoted(std::string& out)
{
    ValueScan scan;
    const auto open = [&] { return scan.getOpen() != std::string_view::npos; };
    while (!scan.advance(m_text.from(m_at)) && open() && scan.getLength() < LongestValue && m_text.load()) {
    }
    xsg::TextReader reader(m_text.from(m_at));
    if (!reader.readQuoted(out))
        return fail(
            m_at,
            SbSentence("the text in quotes that starts here has no end, or an escape that does not exist"));
    m_at = m_text.getEnd() - reader.rest().size();
    return true;
}

std::string xsg::SceneReader::quotedFrom(std::size_t at)
{
    m_text.has(at + ShownLength + 1); // which shows whether the last character is whole
    return xsg::quotedStart(m_text.from(at));
}

bool xsg::SceneReader::advance(Clock::time_point until)
{
    m_until = until;
    while (m_phase != Phase::Done && !isWaiting()) {
        if (!step()) {
            m_references.release();
            m_phase = Phase::Done;
        }
        if (Clock::now() >= until)
            break;
    }
    return m_phase == Phase::Done;
}

bool xsg::SceneReader::isWaiting()
{
    return m_pending && m_pending->isRead.valid() && m_until != Clock::time_point::max() &&
           m_pending->isRead.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

// False on an error.
bool xsg::SceneReader::step()
{
    switch (m_phase) {
    case Phase::FirstLine:
        return readFirstLine();
    case Phase::Items:
        return readItems();
    case Phase::References:
        m_phase = m_references.isDone() ? Phase::Done : Phase::References;
        return m_references.step();
    case Phase::Done:
        break;
    }
    return true;
}

SoRef<SoNode> xsg::SceneReader::takeScene()
{
    return m_fault.problem.empty() ? std::move(m_root) : nullptr;
}

SoRef<SoNode> xsg::SceneReader::read()
{
    advance(Clock::time_point::max());
    return takeScene();
}

SoRef<SoNode> xsg::SceneReader::read(const std::function<void(double)>& goOn)
{
    if (!goOn)
        return read();
    while (!advance(Clock::now() + WorkPieces::Length))
        goOn(static_cast<double>(m_at) / static_cast<double>(m_text.getEnd()));
    return takeScene();
}

std::vector<SoRef<SoNode>> xsg::SceneReader::abandon()
{
    if (m_phase != Phase::Done || m_root)
        m_references.release();
    m_phase = Phase::Done;
    m_pending.reset();
    m_references.forgetLabels();
    std::vector<SoRef<SoNode>> nodes;
    nodes.reserve(m_open.size() + 1);
    for (OpenNode& open : m_open)
        nodes.push_back(std::move(open.node));
    m_open.clear();
    if (m_root)
        nodes.push_back(std::move(m_root));
    return nodes;
}

bool xsg::SceneReader::readFirstLine()
{
    const std::string_view wanted = SoSceneFile::FirstLine;
    m_text.has(ByteOrderMark.size() + wanted.size() + ShownLength);
    if (m_text.from(0).substr(0, ByteOrderMark.size()) == ByteOrderMark)
        m_at = ByteOrderMark.size();
    std::string_view line = m_text.from(m_at).substr(0, wanted.size() + ShownLength);
    line = line.substr(0, line.find('\n'));
    if (line.substr(0, wanted.size()) != wanted || !xsg::trimmed(line.substr(wanted.size())).empty())
        return fail(0, SbSentence("this is no scene file: its first line must be \"%1\"", wanted));
    m_at += line.size();
    m_phase = Phase::Items;
    return true;
}

bool xsg::SceneReader::readItems()
{
    if (m_pending)
        return readValue();
    const bool isSkipped = skipSomeBlanks();
    m_text.pass(m_at);
    if (!isSkipped)
        return true;
    if (atEnd())
        return endItems();
    if (m_root && m_open.empty())
        return fail(m_at, SbSentence("a file holds one node with everything in it, so its end was expected "
                                     "instead of %1",
                                     quotedFrom(m_at)));
    return readItem();
}

bool xsg::SceneReader::endItems()
{
    if (!m_open.empty())
        return fail(m_at, SbSentence("the file ends too early: \"}\" was expected to close the %1",
                                     typeOf(*m_open.back().node)));
    if (!m_root)
        return fail(m_at, SbSentence("the file has no node: a type such as Separator was expected"));
    m_phase = Phase::References;
    return !m_text.isCutShort() || fail(m_at, {});
}

bool xsg::SceneReader::readItem()
{
    const std::size_t start = m_at;
    if (accept('}'))
        return m_open.empty() ? fail(start, SbSentence("\"}\" closes nothing; a node was expected"))
                              : closeNode();
    if (peek() == '@')
        return readReference();
    const std::string word = readWord();
    if (word.empty())
        return fail(start, m_open.empty() ? SbSentence("a node was expected instead of %1", quotedFrom(start))
                                          : SbSentence("a field, a node or \"}\" was expected instead of %1",
                                                       quotedFrom(start)));
    if (peek() != ':')
        return openNode(word, start);
    ++m_at;
    if (m_open.empty())
        return fail(start, SbSentence("a field stands within a node; a node was expected"));
    return readField(word, start);
}

bool xsg::SceneReader::openNode(const std::string& typeName, std::size_t at)
{
    if (!m_open.empty() && !m_open.back().node->asGroup())
        return fail(at,
                    SbSentence("a %1 has no children; a field such as \"name: value\" or \"}\" was expected "
                               "instead of %2",
                               typeOf(*m_open.back().node), quotedStart(typeName)));
    std::string name;
    skipBlanks();
    const bool hasName = peek() == '"';
    if (hasName && !readQuoted(name))
        return false;
    std::string label;
    if (accept('@')) {
        label = readWord();
        if (label.empty())
            return fail(m_at, SbSentence("a label was expected after \"@\""));
    }
    if (!accept('{'))
        return fail(m_at, SbSentence("\"{\" was expected after %1", quotedStart(typeName)));
    const SbName type{SbString(typeName)};
    const SoType known = SoType::fromName(type);
    const bool isKnown = known.isDerivedFrom(SoNode::getClassTypeId()) && known.canCreateInstance();
    m_open.push_back(
        {isKnown ? static_cast<SoNode*>(known.createInstance()) : new SoUnknownNode(type), std::move(label)});
    SoNode* node = m_open.back().node.get();
    if (hasName)
        node->setName(SbName(SbString(name)));
    if (m_nodeListener)
        m_nodeListener(node);
    return true;
}

bool xsg::SceneReader::closeNode()
{
    // Children come into their group when they are complete, so that each change passes few groups.
    const OpenNode closed = std::move(m_open.back());
    m_open.pop_back();
    if (!closed.label.empty() && !m_references.addLabel(closed.label, closed.node))
        return fail(m_at - 1, SbSentence("the label @%1 is already another node's", closed.label));
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
        return fail(at, SbSentence("a %1 has no children", typeOf(*m_open.back().node)));
    group->addChild(node.get());
    return true;
}

bool xsg::SceneReader::readReference()
{
    const std::size_t start = m_at++;
    const std::string label = readWord();
    SoNode* known = m_references.find(label);
    if (!known)
        return fail(start, SbSentence("the label @%1 is not that of a node that is complete here", label));
    return place(known, start);
}

bool xsg::SceneReader::readField(const std::string& name, std::size_t at)
{
    SoNode* node = m_open.back().node.get();
    SoField* field = xsg::fieldOf(node, SbName(SbString(name)));
    if (!field)
        return fail(at, SbSentence("a %1 has no field %2; a field of it, a node or \"}\" was expected",
                                   typeOf(*node), quotedStart(name)));
    // The value begins on the line of the field's name; where it does not, there is none.
    while (peek() != '\n' && xsg::TextReader::isBlank(peek()))
        ++m_at;
    m_pending.emplace(Value{field, m_at, {}, {}, {}});
    return readValue();
}

// The pending one's, as far as it is there; what is long takes several calls.
bool xsg::SceneReader::readValue()
{
    if (m_pending->isRead.valid())
        return takeParsed();
    ValueScan& scan = m_pending->scan;
    const std::size_t start = m_pending->start;
    if (!scan.advance(m_text.from(start))) {
        if (scan.getLength() > LongestValue)
            return fail(start,
                        SbSentence("the value that starts here is longer than 1 GiB, and is not read"));
        if (m_text.load(std::clamp(scan.getLength(), SceneText::PieceBytes, LargestPiece)))
            return true;
    }
    const std::size_t open = scan.getOpen();
    if (open != std::string_view::npos)
        return fail(start + open, m_text.at(start + open) == '['
                                      ? SbSentence("the list that starts here has no \"]\"")
                                      : SbSentence("the text in quotes that starts here has no end"));
    m_at = start + scan.getLength();
    const std::string_view value = xsg::trimmed(m_text.from(start).substr(0, scan.getLength()));
    return parseElsewhere(value) || takeValue(value);
}

bool xsg::SceneReader::takeValue(std::string_view value)
{
    SoField* field = m_pending->field;
    const SceneText::Place at = m_text.placeOf(m_pending->start);
    m_pending.reset();
    if (!value.empty() && isOfNodes(*field)) {
        m_references.addNodes(field, std::string(value), at);
    } else if (!value.empty()) {
        m_value.edit().assign(value);
        if (!m_references.hasNumbers() && !field->set(m_value))
            return m_fault.refuse(at, *field, value);
    }
    return readMarks(field);
}

bool xsg::SceneReader::parseElsewhere(std::string_view value)
{
    SoField* field = m_pending->field;
    if (m_until == Clock::time_point::max() || value.size() < LongValue || isOfNodes(*field))
        return false;
    const std::shared_ptr<SoTypedObject> object(field->getTypeId().createInstance());
    m_pending->copy = std::dynamic_pointer_cast<SoField>(object);
    if (!m_pending->copy)
        return false;
    try {
        m_pending->isRead =
            std::async(std::launch::async, [copy = m_pending->copy, text = SbString(std::string(value))] {
                return copy->set(text);
            });
    } catch (const std::system_error&) {
        return false; // there is no thread to be had
    }
    return true;
}

bool xsg::SceneReader::takeParsed()
{
    const std::size_t start = m_pending->start;
    SoField* field = m_pending->field;
    if (!m_pending->isRead.get() || !field->copyFrom(*m_pending->copy))
        return takeValue(xsg::trimmed(m_text.from(start).substr(0, m_at - start))); // says why
    m_pending.reset();
    return readMarks(field);
}

bool xsg::SceneReader::readMarks(SoField* field)
{
    while (true) {
        skipBlanks();
        const std::size_t start = m_at;
        if (accept('!')) {
            const std::string mark = readWord();
            if (m_references.hasNumbers() && mark == "default")
                m_isDefault = true;
            else if (mark != "ignored")
                return fail(start, SbSentence("\"!ignored\" was expected"));
            else
                field->setIgnored(true);
        } else if (accept('<')) {
            if (!readConnection(field, start))
                return false;
        } else {
            return true;
        }
    }
}

bool xsg::SceneReader::readConnection(SoField* field, std::size_t start)
{
    std::string label;
    bool good = accept('-') && accept('@');
    if (good)
        label = readWord();
    good = good && accept('.');
    if (!good)
        return fail(start, SbSentence("\"<- @label.field\" was expected"));
    m_references.addConnection(field, std::move(label), SbName(SbString(readWord())), m_text.placeOf(start));
    return true;
}

bool xsg::SceneReader::readRecord(const std::vector<SoNode*>& nodes, RecordPart part)
{
    m_references.useNumbers(nodes);
    m_phase = Phase::Items;
    const std::string label = accept('@') ? readWord() : std::string();
    SoNode* node = m_references.find(label);
    if (!node)
        return fail(0, SbSentence("a record starts with \"@\" and the number of a node"));
    m_open.push_back({node, {}});
    skipBlanks();
    const std::size_t start = m_at;
    const std::string name = readWord();
    SoField* field = peek() == ':' ? xsg::fieldOf(node, SbName(SbString(name))) : nullptr;
    if (!field)
        return fail(start, SbSentence("a field of the %1 was expected", typeOf(*node)));
    ++m_at;
    const bool wasIgnored = field->isIgnored();
    field->setIgnored(false); // unless the record says so
    bool good = readField(name, start);
    while (good && m_pending)
        good = readValue();
    skipBlanks();
    if (good && !atEnd())
        good = fail(m_at, SbSentence("the end of the record was expected"));
    if (!good)
        field->setIgnored(wasIgnored);
    return good && applyRecord(*field, part);
}

bool xsg::SceneReader::applyRecord(SoField& field, RecordPart part)
{
    const bool isConnected = m_references.hasConnection();
    const SoField* source = isConnected ? m_references.findSource() : nullptr;
    if (isConnected && !source)
        return false;
    if (part == RecordPart::Value)
        return setRecorded(field);
    if (field.getConnectedField() == source)
        return true;
    if (part == RecordPart::Disconnection)
        field.disconnect();
    return part == RecordPart::Disconnection || m_references.connect();
}

bool xsg::SceneReader::setRecorded(SoField& field)
{
    SbString text = m_value;
    if (!m_references.textOfNodes(text))
        return false;
    if (!field.setWithoutPropagation(text))
        return m_fault.refuse(m_text.placeOf(0), field, text.str());
    field.setDefault(m_isDefault);
    return true;
}
