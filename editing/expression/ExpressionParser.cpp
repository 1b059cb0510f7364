// SPDX-License-Identifier: MIT
#include "ExpressionParser.h"

#include <algorithm>

namespace
{

constexpr std::string_view PresentValue = "x";

// Of other numbers than the function takes.
SbSentence wrongCount(const ExpressionFunction& function, std::size_t count)
{
    if (function.most == 1)
        return SbSentence("“%1” takes 1 number and was given %2.", function.name, count);
    if (function.fewest == function.most)
        return SbSentence("“%1” takes %2 numbers and was given %3.", function.name, function.fewest, count);
    if (function.most == 2)
        return SbSentence("“%1” takes 1 or 2 numbers and was given %2.", function.name, count);
    return SbSentence("“%1” takes 1 number or more and was given %2.", function.name, count);
}

std::string_view withinLength(std::string_view text)
{
    if (text.size() > SpxExpression::MaximumLength)
        throw SpxExpressionError{SpxExpression::MaximumLength,
                                 SbSentence("The text is longer than 1000 characters.")};
    return text;
}

class Deeper
{
public:
    explicit Deeper(int& depth)
        : m_depth(++depth)
    {
    }
    ~Deeper() { --m_depth; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;

private:
    int& m_depth;
};

} // namespace

ExpressionParser::ExpressionParser(std::string_view text, const SpxExpressionSettings& settings,
                                   SpxExpression::Program& program)
    : m_settings(settings)
    , m_program(program)
    , m_tokens(withinLength(text))
    , m_quantity(settings.quantity)
    , m_unit(settings.unit)
{
}

void ExpressionParser::parse()
{
    Power power = 0;
    const std::string_view sign = m_tokens.current().text;
    if (isAt("+=") || isAt("-=") || isAt("*=") || isAt("/="))
        power = parseChange(sign.substr(0, 1));
    else
        power = parseBinary(0);
    requireEnd();
    if (power != 0 && power != 1)
        throw SpxExpressionError{
            0,
            SbSentence("The result is not %1: a unit belongs to the number or parenthesis right before it.",
                       nameOfQuantity(m_quantity))};
    if (!m_program.fitsStack())
        throw SpxExpressionError{0, SbSentence("The expression is nested too deeply.")};
}

// "+= 10 %" adds a share of the present value.
ExpressionParser::Power ExpressionParser::parseChange(std::string_view sign)
{
    const auto& names = m_settings.variables;
    const auto found = std::find(names.begin(), names.end(), PresentValue);
    if (found == names.end())
        throw SpxExpressionError{0, SbSentence("There is no present value here that could be changed.")};
    const auto present = static_cast<std::size_t>(found - names.begin());
    advance();
    m_program.pushVariable(present);
    const std::size_t before = m_tokens.current().position;
    const Power power = parseBinary(0);
    const bool isShare =
        m_operators == 0 && m_previous.kind == ExpressionToken::Sign && m_previous.text == "%";
    if (isShare && (sign == "+" || sign == "-")) {
        m_program.pushVariable(present);
        m_program.call(findExpressionOperator("*")->call, 2);
    }
    if (power != 0 && (power != 1 || sign == "*" || sign == "/"))
        throw SpxExpressionError{before,
                                 SbSentence("A plain number is needed after “%1”.", std::string(sign) + "=")};
    m_program.call(findExpressionOperator(sign)->call, 2);
    return power;
}

// All operators between two numbers are left-associative.
ExpressionParser::Power ExpressionParser::parseBinary(int priority)
{
    const Deeper deeper(m_depth);
    Power power = parsePrefixed();
    for (;;) {
        const ExpressionToken sign = m_tokens.current();
        const ExpressionOperator* found =
            sign.kind == ExpressionToken::Sign ? findExpressionOperator(sign.text) : nullptr;
        if (!found || found->priority <= priority)
            return power;
        advance();
        ++m_operators;
        power = combine(sign, power, parseBinary(found->priority));
        m_program.call(found->call, 2);
    }
}

ExpressionParser::Power ExpressionParser::parsePrefixed()
{
    const Deeper deeper(m_depth);
    if (m_depth > SpxExpression::MaximumDepth)
        fail(SbSentence("The expression is nested too deeply."));
    if (takeSign("+"))
        return parsePrefixed();
    const bool isNegated = takeSign("-");
    if (!isNegated && !takeSign("!"))
        return parsePower();
    const Power power = parsePrefixed();
    m_program.call(isNegated ? negation() : logicalNot(), 1);
    return isNegated ? power : 0;
}

// -2 ^ 2 is -4, and 2 ^ 3 ^ 2 is 2 ^ 9.
ExpressionParser::Power ExpressionParser::parsePower()
{
    const Power power = parsePostfixed();
    const ExpressionToken sign = m_tokens.current();
    if (!takeSign("^"))
        return power;
    ++m_operators;
    if (power != 0 || parsePrefixed() != 0)
        failAt(sign, SbSentence("Only plain numbers can be raised to a power."));
    m_program.call(powerOf(), 2);
    return 0;
}

ExpressionParser::Power ExpressionParser::parsePostfixed()
{
    Power power = parsePrimary();
    if (takeSign("%"))
        scale(0.01);
    else if (m_tokens.current().kind == ExpressionToken::Name)
        parseUnit(power);
    return power;
}

void ExpressionParser::parseUnit(Power& power)
{
    const ExpressionToken name = m_tokens.current();
    const ExpressionUnit* unit = findExpressionUnit(name.text);
    if (!unit)
        failAtCurrent();
    if (unit->quantity != m_quantity)
        failAt(name, SbSentence("“%1” is a unit of %2, and %3 is wanted here.", name.text,
                                nameOfQuantity(unit->quantity), nameOfQuantity(m_quantity)));
    if (power != 0)
        failAt(name, SbSentence("There is a unit already."));
    power = 1;
    scale(unit->size / m_unit);
    advance();
}

ExpressionParser::Power ExpressionParser::parsePrimary()
{
    const ExpressionToken token = m_tokens.current();
    if (token.kind == ExpressionToken::Name)
        return parseName();
    if (token.kind == ExpressionToken::Number) {
        m_program.pushNumber(token.number);
        advance();
        return 0;
    }
    if (takeSign("("))
        return parseParenthesis();
    failAtCurrent();
}

ExpressionParser::Power ExpressionParser::parseParenthesis()
{
    const int operators = m_operators;
    const Power power = parseBinary(0);
    m_operators = operators;
    expect(")");
    return power;
}

ExpressionParser::Power ExpressionParser::parseName()
{
    const ExpressionToken name = m_tokens.current();
    const auto& variables = m_settings.variables;
    advance();
    const auto variable = std::find(variables.begin(), variables.end(), name.text);
    if (isAt("(")) {
        if (const ExpressionFunction* function = findExpressionFunction(name.text))
            return parseFunction(*function, name);
        if (variable == variables.end())
            failAt(name, SbSentence("There is no function “%1”.", name.text));
    }
    if (variable != variables.end())
        m_program.pushVariable(static_cast<std::size_t>(variable - variables.begin()));
    else if (const ExpressionConstant* constant = findExpressionConstant(name.text))
        m_program.pushNumber(constant->value);
    else if (findExpressionFunction(name.text))
        failAt(name, SbSentence("“%1” needs its numbers in parentheses after it.", name.text));
    else
        failAt(name, SbSentence("“%1” is not known here.", name.text));
    return 0;
}

ExpressionParser::Power ExpressionParser::parseFunction(const ExpressionFunction& function,
                                                        const ExpressionToken& name)
{
    advance();
    std::size_t count = 0;
    const int operators = m_operators;
    const bool takesAngle = function.units == ExpressionUnits::FromAngle;
    Power power = takesAngle ? parseAngle(function, count) : parseArguments(function, count);
    m_operators = operators;
    if (count < function.fewest || count > function.most)
        failAt(name, wrongCount(function, count));
    m_program.call(function.call, count);
    if (function.units == ExpressionUnits::ToAngle && m_quantity == SpxQuantity::Angle)
        scale(1 / m_unit);
    return takesAngle ? 0 : unitsOf(function, name, power);
}

// The unit of what all arguments have in common.
ExpressionParser::Power ExpressionParser::parseArguments(const ExpressionFunction& function,
                                                         std::size_t& count)
{
    Power common = 0;
    while (!isAt(")")) {
        const ExpressionToken first = m_tokens.current();
        const Power power = parseBinary(0);
        const bool isCondition = function.units == ExpressionUnits::Choice && count == 0;
        if (!isCondition && common != 0 && power != 0 && power != common)
            failAt(first, SbSentence("This has another unit than what stands before it."));
        if (!isCondition && power != 0)
            common = power;
        ++count;
        if (!takeSign(","))
            break;
        if (isAt(")"))
            failAtCurrent();
    }
    expect(")");
    return common;
}

ExpressionParser::Power ExpressionParser::parseAngle(const ExpressionFunction& function, std::size_t& count)
{
    const SpxQuantity quantity = m_quantity;
    const double unit = m_unit;
    m_unit = quantity == SpxQuantity::Angle ? unit : 1;
    m_quantity = SpxQuantity::Angle;
    const ExpressionToken first = m_tokens.current();
    const Power power = parseArguments(function, count);
    if (power != 0 && power != 1)
        failAt(first, SbSentence("The result of what stands here is not an angle."));
    if (count == 1)
        scale(m_unit);
    m_quantity = quantity;
    m_unit = unit;
    return power;
}

ExpressionParser::Power ExpressionParser::unitsOf(const ExpressionFunction& function,
                                                  const ExpressionToken& name, Power power) const
{
    if (power == 0)
        return 0;
    const bool isRoot = function.units == ExpressionUnits::Root && power % 2 == 0;
    if (function.units == ExpressionUnits::Keeps || function.units == ExpressionUnits::Choice)
        return power;
    if (!isRoot)
        failAt(name, SbSentence("“%1” takes plain numbers, without a unit.", name.text));
    return power / 2;
}

ExpressionParser::Power ExpressionParser::combine(const ExpressionToken& sign, Power left, Power right) const
{
    if (sign.text == "*")
        return left + right;
    if (sign.text == "/")
        return left - right;
    if (left != 0 && right != 0 && left != right)
        failAt(sign, SbSentence("The two sides have different units."));
    const bool isSum = sign.text == "+" || sign.text == "-";
    return !isSum ? 0 : left != 0 ? left : right;
}

void ExpressionParser::scale(double factor)
{
    if (factor == 1)
        return;
    m_program.pushNumber(factor);
    m_program.call(findExpressionOperator("*")->call, 2);
}

void ExpressionParser::advance()
{
    m_previous = m_tokens.current();
    m_tokens.advance();
}

bool ExpressionParser::isAt(std::string_view sign) const
{
    return m_tokens.current().kind == ExpressionToken::Sign && m_tokens.current().text == sign;
}

bool ExpressionParser::takeSign(std::string_view sign)
{
    if (!isAt(sign))
        return false;
    advance();
    return true;
}

void ExpressionParser::expect(std::string_view sign)
{
    if (m_tokens.current().kind == ExpressionToken::End)
        fail(SbSentence("A “%1” is missing at the end.", sign));
    if (!takeSign(sign))
        failAtCurrent();
}

void ExpressionParser::requireEnd() const
{
    if (m_tokens.current().kind != ExpressionToken::End)
        failAtCurrent();
}

void ExpressionParser::fail(const SbSentence& sentence) const
{
    failAt(m_tokens.current(), sentence);
}

void ExpressionParser::failAt(const ExpressionToken& token, const SbSentence& sentence) const
{
    throw SpxExpressionError{token.position, sentence};
}

// What stands here fits nowhere.
void ExpressionParser::failAtCurrent() const
{
    const ExpressionToken& token = m_tokens.current();
    const bool isStart = m_previous.kind == ExpressionToken::End;
    const bool needsNumber = isStart || (m_previous.kind == ExpressionToken::Sign && m_previous.text != ")" &&
                                         m_previous.text != "%");
    if (token.kind == ExpressionToken::End)
        fail(isStart ? SbSentence("A number or a formula is missing.")
                     : SbSentence("A number is missing after “%1”.", m_previous.text));
    if (isAt(","))
        fail(SbSentence(
            "A comma separates the arguments of a function; it is a decimal sign only in a text that "
            "is one number."));
    if (needsNumber || token.kind == ExpressionToken::Sign)
        fail(SbSentence("“%1” makes no sense here.", token.text));
    fail(SbSentence("A sign such as + or * is missing before “%1”.", token.text));
}
