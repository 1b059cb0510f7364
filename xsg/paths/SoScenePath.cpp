// SPDX-License-Identifier: MIT
#include <xsg/paths/SoScenePath.h>

#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/paths/NodeLabel.h>

#include <algorithm>

namespace
{

bool isPlain(std::string_view word)
{
    return !word.empty() && std::all_of(word.begin(), word.end(), xsg::TextReader::isWordByte);
}

void writeWord(std::string& out, std::string_view word)
{
    if (isPlain(word))
        out += word;
    else
        xsg::appendQuoted(out, word);
}

bool endsPath(char c)
{
    return xsg::TextReader::isBlank(c) || c == ',' || c == ']' || c == '=';
}

} // namespace

SoScenePath::SoScenePath(std::string_view text)
{
    xsg::TextReader in(text);
    if (read(in, *this, m_error) && !in.atEnd())
        m_error = SbSentence("the path was expected to end before \"%1\"", in.rest());
    if (!m_error.empty())
        m_error = SbSentence("\"%1\" is no path: %2.", text, m_error);
}

SoScenePath SoScenePath::of(const SoPath& path)
{
    SoScenePath result;
    for (int i = 1; i < path.getLength(); ++i) {
        const SoGroup* group = path.getNode(i - 1)->asGroup();
        const SoNode* node = path.getNode(i);
        const SbName label = xsg::labelOf(*node);
        int index = 0;
        for (const SoNode* child : group->getChildren()) {
            if (child == node)
                break;
            index += xsg::labelOf(*child) == label ? 1 : 0;
        }
        result.append({label.getString(), index});
    }
    return result;
}

SoScenePath SoScenePath::ofLabel(const SoFieldContainer& container)
{
    const auto* node = dynamic_cast<const SoNode*>(&container);
    const SbName label = node ? xsg::labelOf(*node) : container.getName();
    SoScenePath result;
    result.m_isAbsolute = false;
    result.append(
        {label.getLength() > 0 ? label.getString() : container.getTypeId().getName().getString(), 0});
    return result;
}

SbSentence SoScenePath::nameOf(Word what)
{
    return what == Word::Node ? SbSentence("the name or type of a node") : SbSentence("the name of a field");
}

bool SoScenePath::readWord(xsg::TextReader& in, Word what, std::string& word, SbSentence& problem)
{
    if (in.peek() == '"') {
        if (in.readQuoted(word) && !word.empty() && word.find('\0') == std::string::npos)
            return true;
        problem = SbSentence("the quotes around %1 have no end, or nothing in them", nameOf(what));
        return false;
    }
    word = std::string(in.readWord());
    if (!word.empty())
        return true;
    problem = in.atEnd() ? SbSentence("%1 was expected at the end", nameOf(what))
                         : SbSentence("%1 was expected before \"%2\"", nameOf(what), in.rest().substr(0, 40));
    return false;
}

bool SoScenePath::readIndex(xsg::TextReader& in, int& index, SbSentence& problem)
{
    if (!in.accept('['))
        return true;
    const bool isNumber = in.peek() >= '0' && in.peek() <= '9' && in.readNumber(index);
    if (isNumber && in.accept(']'))
        return true;
    problem = SbSentence("a number, counted from 0, and \"]\" were expected after \"[\"");
    return false;
}

bool SoScenePath::readStep(xsg::TextReader& in, Step& step, SbSentence& problem)
{
    step.index = 0;
    return readWord(in, Word::Node, step.label, problem) && readIndex(in, step.index, problem);
}

bool SoScenePath::read(xsg::TextReader& in, SoScenePath& path, SbSentence& problem)
{
    path = SoScenePath();
    path.m_isAbsolute = in.accept('/');
    const auto atNode = [&] { return !in.atEnd() && in.peek() != '.' && !endsPath(in.peek()); };
    if (!path.m_isAbsolute || atNode()) {
        do {
            if (!readStep(in, path.m_steps.emplace_back(), problem))
                return false;
        } while (in.accept('/'));
    }
    if (in.accept('.') &&
        (!readWord(in, Word::Field, path.m_field, problem) || !readIndex(in, path.m_index, problem)))
        return false;
    if (in.atEnd() || endsPath(in.peek()))
        return true;
    problem =
        SbSentence("\"/\", \".\", \"[\" or the end was expected before \"%1\"", in.rest().substr(0, 40));
    return false;
}

void SoScenePath::writeStep(std::string& out, const Step& step)
{
    writeWord(out, step.label);
    if (step.index > 0)
        out += '[' + std::to_string(step.index) + ']';
}

std::string SoScenePath::toText() const
{
    std::string text;
    for (const Step& step : m_steps) {
        if (m_isAbsolute || !text.empty())
            text += '/';
        writeStep(text, step);
    }
    if (m_steps.empty())
        text = "/";
    if (m_field.empty())
        return text;
    text += '.';
    writeWord(text, m_field);
    if (m_index >= 0)
        text += '[' + std::to_string(m_index) + ']';
    return text;
}

void SoScenePath::setField(std::string field, int index)
{
    m_field = std::move(field);
    m_index = index;
}

SoScenePath SoScenePath::withoutField() const
{
    SoScenePath path = *this;
    path.setField({});
    return path;
}

SoScenePath SoScenePath::getParent() const
{
    SoScenePath path = withoutField();
    if (!path.m_steps.empty())
        path.m_steps.pop_back();
    return path;
}

bool SoScenePath::operator==(const SoScenePath& other) const
{
    return m_isAbsolute == other.m_isAbsolute && m_steps == other.m_steps && m_field == other.m_field &&
           m_index == other.m_index;
}
