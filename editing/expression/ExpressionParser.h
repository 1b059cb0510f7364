// SPDX-License-Identifier: MIT
#pragma once

#include "ExpressionProgram.h"
#include "ExpressionTokens.h"
#include "ExpressionUnit.h"

/// Compiles a text into a program. What is wrong with it is thrown as an SpxExpressionError.
///
/// Every part of a formula has a power of the quantity's unit: 0 for plain numbers, 1 for 3 cm, 2 for 3 cm *
/// 3 cm. The whole has 0, and is then in the settings' unit, or 1.
class ExpressionParser
{
public:
    ExpressionParser(std::string_view text, const SpxExpressionSettings& settings,
                     SpxExpression::Program& program);

    void parse();

private:
    using Power = int;

    Power parseChange(std::string_view sign);
    Power parseBinary(int priority);
    Power parsePrefixed();
    Power parsePower();
    Power parsePostfixed();
    Power parsePrimary();
    Power parseParenthesis();
    Power parseName();
    Power parseFunction(const ExpressionFunction& function, const ExpressionToken& name);
    Power parseArguments(const ExpressionFunction& function, std::size_t& count);
    Power parseAngle(const ExpressionFunction& function, std::size_t& count);
    void parseUnit(Power& power);

    void advance();
    bool takeSign(std::string_view sign);
    bool isAt(std::string_view sign) const;
    void expect(std::string_view sign);
    Power combine(const ExpressionToken& sign, Power left, Power right) const;
    Power unitsOf(const ExpressionFunction& function, const ExpressionToken& name, Power power) const;
    void scale(double factor);
    void requireEnd() const;
    [[noreturn]] void fail(const SbSentence& sentence) const;
    [[noreturn]] void failAt(const ExpressionToken& token, const SbSentence& sentence) const;
    [[noreturn]] void failAtCurrent() const;

    const SpxExpressionSettings& m_settings;
    SpxExpression::Program& m_program;
    ExpressionTokens m_tokens;
    SpxQuantity m_quantity; // another one among the arguments of sin() and its like
    double m_unit;
    ExpressionToken m_previous; // End before the first
    int m_operators = 0;        // outside of parentheses, so far
    int m_depth = 0;
};
