// SPDX-License-Identifier: MIT
#include "ExpressionTokens.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace
{

struct Spelling {
    std::string_view typed;
    std::string_view plain;
};

// The longer before the shorter that they begin with.
constexpr Spelling Signs[] = {
    {"**", "^"},     {"+=", "+="},    {"-=", "-="},    {"*=", "*="},    {"/=", "/="},     {"==", "=="},
    {"!=", "!="},    {"<>", "!="},    {"<=", "<="},    {">=", ">="},    {"&&", "&&"},     {"||", "||"},
    {"\u00D7", "*"}, {"\u00B7", "*"}, {"\u00F7", "/"}, {"\u2212", "-"}, {"\u2264", "<="}, {"\u2265", ">="},
    {"+", "+"},      {"-", "-"},      {"*", "*"},      {"/", "/"},      {"^", "^"},       {"(", "("},
    {")", ")"},      {",", ","},      {"<", "<"},      {">", ">"},      {"=", "=="},      {"!", "!"},
    {"%", "%"},
};

// Letters beyond ASCII that are part of names here.
constexpr std::string_view Letters[] = {"\u00B0", "\u00B5", "\u03BC", "\u03C0", "\u221E"};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool beginsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

// How many bytes of a name's letter the text begins with.
std::size_t letterAt(std::string_view text)
{
    if (text.empty())
        return 0;
    if (std::isalpha(static_cast<unsigned char>(text[0])) != 0 || text[0] == '_')
        return 1;
    for (const std::string_view letter : Letters) {
        if (beginsWith(text, letter))
            return letter.size();
    }
    return 0;
}

// The whole character, so that a sentence quotes no half of one.
std::string_view firstCharacter(std::string_view text)
{
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        ++length;
    return text.substr(0, length);
}

std::size_t skip(std::string_view text, std::size_t at, std::string_view characters)
{
    return std::min(text.find_first_not_of(characters, at), text.size());
}

constexpr std::string_view Digits = "0123456789";

// A text that is one number, perhaps with a unit, and perhaps after what makes it a change: the comma is its
// decimal sign.
bool isLoneNumber(std::string_view text, std::size_t comma)
{
    const std::size_t whole = skip(text, 0, " \t+-*/=");
    std::size_t at = skip(text, comma + 1, Digits);
    if (skip(text, whole, Digits) != comma || at == comma + 1)
        return false;
    if (at + 1 < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const std::size_t digits = at + (text[at + 1] == '-' || text[at + 1] == '+' ? 2 : 1);
        if (skip(text, digits, Digits) > digits)
            at = skip(text, digits, Digits);
    }
    return text.find_first_of("0123456789,.()+-*/^<>=!&|", at) == std::string_view::npos;
}

std::string withPoint(std::string_view text)
{
    std::string copy(text);
    const std::size_t comma = text.find(',');
    if (comma != std::string_view::npos && isLoneNumber(text, comma))
        copy[comma] = '.';
    return copy;
}

} // namespace

ExpressionTokens::ExpressionTokens(std::string_view text)
    : m_text(withPoint(text))
{
    advance();
}

void ExpressionTokens::advance()
{
    skipSpace();
    if (m_at == m_text.size())
        return take(ExpressionToken::End, 0);
    if (readNumber() || readQuotedName() || readName() || readSign())
        return;
    throw SpxExpressionError{m_at, SbSentence("“%1” has no meaning here.", firstCharacter(rest()))};
}

void ExpressionTokens::skipSpace()
{
    constexpr std::string_view NoBreakSpace = "\u00A0";
    for (;;) {
        if (m_at < m_text.size() && std::isspace(static_cast<unsigned char>(m_text[m_at])) != 0)
            ++m_at;
        else if (beginsWith(rest(), NoBreakSpace))
            m_at += NoBreakSpace.size();
        else
            return;
    }
}

bool ExpressionTokens::readNumber()
{
    const std::string_view text = rest();
    const bool isHexadecimal = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X') &&
                               std::isxdigit(static_cast<unsigned char>(text[2])) != 0;
    if (!isDigit(text[0]) && !(text[0] == '.' && text.size() > 1 && isDigit(text[1])))
        return false;
    const char* begin = text.data() + (isHexadecimal ? 2 : 0);
    double number = 0;
    const std::from_chars_result end =
        std::from_chars(begin, text.data() + text.size(), number,
                        isHexadecimal ? std::chars_format::hex : std::chars_format::general);
    const auto length = static_cast<std::size_t>(end.ptr - text.data());
    if (end.ec != std::errc())
        throw SpxExpressionError{
            m_at, SbSentence("“%1” is too large or too small a number.", text.substr(0, length))};
    take(ExpressionToken::Number, length);
    m_current.number = number;
    return true;
}

bool ExpressionTokens::readName()
{
    std::size_t length = letterAt(rest());
    if (length == 0)
        return false;
    for (;;) {
        const std::string_view more = rest().substr(length);
        const std::size_t letter = letterAt(more);
        if (letter == 0 && (more.empty() || (!isDigit(more[0]) && more[0] != '.')))
            break;
        length += letter == 0 ? 1 : letter;
    }
    take(ExpressionToken::Name, length);
    return true;
}

bool ExpressionTokens::readQuotedName()
{
    if (m_text[m_at] != '"')
        return false;
    const std::size_t end = m_text.find('"', m_at + 1);
    if (end == std::string::npos)
        throw SpxExpressionError{m_at, SbSentence("The name that begins here has no second quotation mark.")};
    take(ExpressionToken::Name, end + 1 - m_at);
    m_current.text = m_current.text.substr(1, m_current.text.size() - 2);
    return true;
}

bool ExpressionTokens::readSign()
{
    for (const Spelling& sign : Signs) {
        if (beginsWith(rest(), sign.typed)) {
            take(ExpressionToken::Sign, sign.typed.size());
            m_current.text = sign.plain;
            return true;
        }
    }
    return false;
}

void ExpressionTokens::take(ExpressionToken::Kind kind, std::size_t length)
{
    m_current = {kind, rest().substr(0, length), m_at, 0};
    m_at += length;
}
