// SPDX-License-Identifier: MIT
#include <xsg/changes/PatchLine.h>

#include <xsg/values/Printable.h>
#include <xsg/values/Utf.h>

#include <algorithm>
#include <array>

namespace xsg
{

namespace
{

using Kind = SceneChange::Kind;
using Origin = SceneChange::Origin;

constexpr std::array Kinds{Kind::Remove, Kind::Insert, Kind::Move, Kind::Replace,
                           Kind::Order,  Kind::Rename, Kind::Set};
constexpr std::size_t ShownLength = 40;

} // namespace

bool PatchLine::fail(const SbSentence& expected)
{
    m_in.skipBlanks();
    const std::string_view rest = m_in.rest();
    const std::string_view shown = rest.substr(0, xsg::wholeCharacters(rest, ShownLength));
    m_problem = m_in.atEnd()
                    ? SbSentence("%1 was expected at the end of the line", expected)
                    : SbSentence("%1 was expected instead of \"%2\"", expected, xsg::printable(shown));
    return false;
}

// Of what ends in a subordinate clause.
bool PatchLine::failBeforeComma(const SbSentence& expected)
{
    return fail(SbSentence("%1,", expected));
}

bool PatchLine::accept(std::string_view word)
{
    m_in.skipBlanks();
    const std::string_view rest = m_in.rest();
    if (rest.substr(0, word.size()) != word ||
        (rest.size() > word.size() && TextReader::isWordByte(rest[word.size()])))
        return false;
    m_in.skip(word.size());
    return true;
}

bool PatchLine::expect(std::string_view sign)
{
    m_in.skipBlanks();
    if (m_in.rest().substr(0, sign.size()) != sign)
        return fail(SbSentence("\"%1\"", sign));
    m_in.skip(sign.size());
    return true;
}

bool PatchLine::read(SceneChange& change, SbSentence& problem)
{
    const auto kind = std::find_if(Kinds.begin(), Kinds.end(),
                                   [&](Kind each) { return accept(SceneChange::nameOf(each)); });
    bool good =
        kind != Kinds.end() ||
        fail(SbSentence("\"set\", \"name\", \"insert\", \"remove\", \"move\", \"replace\" or \"order\""));
    if (good) {
        change.kind = *kind;
        good = readRest(change) && readEnd(change);
    }
    problem = m_problem;
    return good;
}

bool PatchLine::readRest(SceneChange& change)
{
    if (!readPath(change.path, change.kind == Kind::Set))
        return false;
    if (change.path.getSteps().empty() && change.kind != Kind::Replace && change.kind != Kind::Rename &&
        change.kind != Kind::Set)
        return fail(SbSentence("the path of a place below the root"));
    switch (change.kind) {
    case Kind::Remove:
        return readCount(change.count);
    case Kind::Move:
        return readCount(change.count) && readAnchor(change) && readOrigin(change) &&
               (change.origin == Origin::Old || fail(SbSentence("\"from\" and where it was")));
    case Kind::Insert:
        return readCount(change.count) && readAnchor(change) && readOrigin(change);
    case Kind::Replace:
        return readReplacement(change);
    case Kind::Order:
        return readAnchor(change);
    case Kind::Rename:
        return readName(change.name) && (change.name || fail(SbSentence("a name in quotes")));
    default:
        return readSet(change);
    }
}

bool PatchLine::readPath(SoScenePath& path, bool isField)
{
    m_in.skipBlanks();
    if (m_in.peek() != '/')
        return failBeforeComma(SbSentence("a path, which starts with \"/\""));
    if (!SoScenePath::read(m_in, path, m_problem))
        return false;
    if (path.getField().empty() == isField)
        return isField ? failBeforeComma(SbSentence("the path of a field, such as /Lamp.intensity"))
                       : fail(SbSentence("the path of a node"));
    return true;
}

bool PatchLine::readCount(SceneChange::Count& count)
{
    const auto number = [this](int& value) {
        return (m_in.readNumber(value) && value >= 0) || fail(SbSentence("a number of children"));
    };
    return expect("(") && number(count.before) && expect("->") && number(count.after) && expect(")");
}

bool PatchLine::readAnchor(SceneChange& change)
{
    if (accept("first"))
        return true;
    if (!accept("after"))
        return failBeforeComma(SbSentence("\"first\", or \"after\" and a node"));
    m_in.skipBlanks();
    return SoScenePath::readStep(m_in, change.after.emplace(), m_problem);
}

bool PatchLine::readName(std::optional<std::string>& name)
{
    m_in.skipBlanks();
    if (m_in.peek() != '"')
        return true;
    return readQuoted(name.emplace(), SbSentence("the end of the quotes"),
                      SbSentence("a name without a byte 0"));
}

// What no file can hold is refused.
bool PatchLine::readQuoted(std::string& text, const SbSentence& expected, const SbSentence& expectedText)
{
    if (!m_in.readQuoted(text))
        return fail(expected);
    return text.find('\0') == std::string::npos || fail(expectedText);
}

bool PatchLine::readOrigin(SceneChange& change)
{
    if (accept("same")) {
        change.origin = Origin::Same;
        return readPath(change.same, false);
    }
    if (accept("from")) {
        change.origin = Origin::Old;
        return readPath(change.from, false) && readName(change.name);
    }
    if (!accept("new"))
        return fail(SbSentence("\"new\", \"from\" or \"same\""));
    m_in.skipBlanks();
    change.type = std::string(m_in.readWord());
    return change.type.empty() ? fail(SbSentence("a type")) : readName(change.name);
}

bool PatchLine::readReplacement(SceneChange& change)
{
    if (!readOrigin(change))
        return false;
    if (change.origin == Origin::Old)
        return fail(SbSentence("\"new\" or \"same\""));
    if (accept("apart"))
        return readPath(change.apart.emplace(), false);
    if (!accept("fields"))
        return true;
    for (m_in.skipBlanks(); TextReader::isWordByte(m_in.peek()); m_in.skipBlanks())
        change.fields.emplace_back(m_in.readWord());
    return !change.fields.empty() || fail(SbSentence("the name of a field"));
}

bool PatchLine::readSet(SceneChange& change)
{
    return readValue(change) && readMarks(change) &&
           (change.path.getIndex() < 0 || (change.value && !change.isIgnored && !change.source) ||
            failBeforeComma(SbSentence("one value, without marks")));
}

bool PatchLine::readValue(SceneChange& change)
{
    m_in.skipBlanks();
    if (accept("!default"))
        return true;
    if (accept("!text")) {
        m_in.skipBlanks();
        return readQuoted(change.value.emplace(), SbSentence("a text in quotes"),
                          SbSentence("a text without a byte 0"));
    }
    const ValueExtent extent(m_in.rest());
    const std::string_view value = trimmed(m_in.rest().substr(0, extent.length));
    if (!extent.isWhole())
        return fail(SbSentence("an end of the list or text that begins here"));
    if (value.empty())
        return fail(SbSentence("a value or \"!default\""));
    change.value = std::string(value);
    m_in.skip(extent.length);
    return true;
}

bool PatchLine::readMarks(SceneChange& change)
{
    change.isIgnored = accept("!ignored");
    m_in.skipBlanks();
    if (m_in.rest().substr(0, 2) != "<-")
        return true;
    m_in.skip(2);
    return readPath(change.source.emplace(), true) &&
           (change.source->getIndex() < 0 || fail(SbSentence("a whole field")));
}

bool PatchLine::readEnd(SceneChange& change)
{
    m_in.skipBlanks();
    if (!m_in.atEnd() && m_in.peek() != '#')
        return fail(SbSentence("the end of the line"));
    constexpr std::string_view was = "# was ";
    if (m_in.rest().substr(0, was.size()) == was)
        change.was = std::string(m_in.rest().substr(was.size()));
    return true;
}

} // namespace xsg
