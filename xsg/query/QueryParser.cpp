// SPDX-License-Identifier: MIT
#include "QueryParser.h"

#include "QueryText.h"

#include <algorithm>
#include <array>

namespace xsg
{

namespace
{

using Kind = QueryTerm::Kind;
using Sign = QueryTerm::Sign;

template <class Value>
struct Spelled {
    std::string_view text;
    Value value;
};

constexpr std::array<Spelled<Kind>, 4> Keys{
    {{"name", Kind::Name}, {"type", Kind::Type}, {"field", Kind::Field}, {"value", Kind::Value}}};

constexpr std::array<Spelled<Kind>, 4> States{{{"changed", Kind::Changed},
                                               {"connected", Kind::Connected},
                                               {"ignored", Kind::Ignored},
                                               {"shared", Kind::Shared}}};

// The longer ones first.
constexpr std::array<Spelled<Sign>, 7> Signs{{{"!=", Sign::Unequal},
                                              {"<=", Sign::LessOrEqual},
                                              {">=", Sign::GreaterOrEqual},
                                              {"=", Sign::Equal},
                                              {"<", Sign::Less},
                                              {">", Sign::Greater},
                                              {"~", Sign::Contains}}};

template <class Table>
auto findSpelled(const Table& table, std::string_view text)
{
    return std::find_if(table.begin(), table.end(), [&](const auto& each) { return each.text == text; });
}

// x y z w and r g b a of "translation.x"; -1 for others.
int componentOf(std::string_view name)
{
    if (name.size() != 1)
        return -1;
    for (const std::string_view letters : {"xyzw", "rgba"}) {
        const auto at = letters.find(name[0]);
        if (at != std::string_view::npos)
            return static_cast<int>(at);
    }
    return -1;
}

// None for what is a single word.
std::optional<SoScenePath> relativePath(std::string_view text)
{
    SoScenePath path(text);
    const bool isMore = path.isValid() && (path.getSteps().size() > 1 || !path.getField().empty() ||
                                           path.getSteps().front().index > 0);
    return isMore ? std::optional<SoScenePath>(std::move(path)) : std::nullopt;
}

bool isOrder(Sign sign)
{
    return sign != Sign::Equal && sign != Sign::Unequal && sign != Sign::Contains;
}

} // namespace

std::vector<QueryTerms> QueryParser::parse()
{
    std::vector<QueryTerms> alternatives(1);
    for (skipSpaces(); !m_rest.empty(); skipSpaces()) {
        if (m_rest.front() == '|') {
            m_rest.remove_prefix(1);
            alternatives.emplace_back();
        } else if (!parseTerm(alternatives.back())) {
            return {};
        }
    }
    // "a |", while somebody is typing, still finds what a finds.
    const auto isEmpty = [](const QueryTerms& terms) { return terms.empty(); };
    alternatives.erase(std::remove_if(alternatives.begin(), alternatives.end(), isEmpty), alternatives.end());
    return alternatives;
}

void QueryParser::skipSpaces()
{
    while (!m_rest.empty() && isSpace(m_rest.front()))
        m_rest.remove_prefix(1);
}

bool QueryParser::parseTerm(QueryTerms& terms)
{
    QueryTerm term;
    if (m_rest.front() == '-') {
        term.negated = true;
        m_rest.remove_prefix(1);
    }
    const std::string_view typed = m_rest;
    if (typed.substr(0, 1) == "/") {
        if (!takePlace(term))
            return false;
    } else {
        const Word word = takeWord();
        if (!m_error.empty() || !makeTerm(word, term))
            return false;
        if (term.kind == Kind::Word)
            term.path = relativePath(typed.substr(0, typed.size() - m_rest.size()));
    }
    terms.push_back(std::move(term));
    return true;
}

// As paths are written everywhere, quotes included. What is not finished yet finds what it says so far.
bool QueryParser::takePlace(QueryTerm& term)
{
    bool isQuoted = false;
    std::size_t end = 0;
    for (; end < m_rest.size() && (isQuoted || (!isSpace(m_rest[end]) && m_rest[end] != '|')); ++end) {
        if (isQuoted && m_rest[end] == '\\')
            ++end;
        else if (m_rest[end] == '"')
            isQuoted = !isQuoted;
    }
    end = std::min(end, m_rest.size());
    std::string text(m_rest.substr(0, end));
    m_rest.remove_prefix(end);
    if (isQuoted)
        text += '"';
    while (text.size() > 1 && (text.back() == '/' || text.back() == '.'))
        text.pop_back();
    term.kind = Kind::Place;
    term.path = SoScenePath(text);
    return term.path->isValid() || fail(term.path->getError());
}

QueryParser::Word QueryParser::takeWord()
{
    Word word;
    while (!m_rest.empty() && !isSpace(m_rest.front()) && m_rest.front() != '|') {
        if (m_rest.front() != '"') {
            word.text += m_rest.front();
            m_rest.remove_prefix(1);
            continue;
        }
        if (!word.quoted)
            word.quotedFrom = word.text;
        word.quoted = true;
        if (!takeQuoted(word.text))
            break;
    }
    if (!word.quoted)
        word.quotedFrom = word.text;
    return word;
}

// A quote that is still open ends with the text, so that results show while it is typed.
bool QueryParser::takeQuoted(std::string& text)
{
    m_rest.remove_prefix(1);
    const auto end = m_rest.find('"');
    text += m_rest.substr(0, end);
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
    return end != std::string_view::npos;
}

bool QueryParser::makeTerm(const Word& word, QueryTerm& term)
{
    const std::string all = toLower(word.text);
    const std::string bare = toLower(word.quotedFrom); // what is quoted has no signs
    const auto state = findSpelled(States, all);
    if (!word.quoted && state != States.end()) {
        term.kind = state->value;
        return true;
    }
    const auto colon = bare.find(':');
    const auto key = findSpelled(Keys, std::string_view(bare).substr(0, colon));
    if (colon != std::string::npos && key != Keys.end()) {
        term.kind = key->value;
        term.text = all.substr(colon + 1);
        return !term.text.empty() ||
               fail(SbSentence("“%1” lacks what to look for after the colon.", word.text));
    }
    const auto sign = bare.find_first_of("=<>~!");
    if (sign != std::string::npos && sign > 0)
        return makeComparison(word, sign, term);
    term.text = all;
    return !term.text.empty() || fail(SbSentence("A minus sign lacks what is not to be found."));
}

bool QueryParser::makeComparison(const Word& word, std::size_t at, QueryTerm& term)
{
    term.kind = Kind::Compare;
    term.field = toLower(std::string_view(word.text).substr(0, at));
    const std::string rest = toLower(std::string_view(word.text).substr(at));
    const auto sign = std::find_if(Signs.begin(), Signs.end(), [&](const auto& each) {
        return rest.compare(0, each.text.size(), each.text) == 0;
    });
    if (sign == Signs.end())
        return fail(SbSentence("“%1” has a sign that compares nothing: use = != < <= > >= or ~.", word.text));
    term.sign = sign->value;
    term.text = rest.substr(sign->text.size());
    const auto dot = term.field.rfind('.');
    if (dot != std::string::npos) {
        term.component = componentOf(std::string_view(term.field).substr(dot + 1));
        if (term.component < 0)
            return fail(
                SbSentence("“%1” names no number of a value: use .x .y .z .w or .r .g .b .a.", word.text));
        term.field.erase(dot);
    }
    term.numbers = term.sign == Sign::Contains ? std::vector<double>() : numbersOf(term.text);
    if (isOrder(term.sign) && term.numbers.size() != 1)
        return fail(SbSentence("“%1” needs a number to compare with.", word.text));
    return !term.text.empty() || word.quoted ||
           fail(SbSentence("“%1” lacks the value to compare with.", word.text));
}

bool QueryParser::fail(SbSentence sentence)
{
    m_error = std::move(sentence);
    return false;
}

} // namespace xsg
