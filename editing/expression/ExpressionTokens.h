// SPDX-License-Identifier: MIT
#pragma once

#include "SpxExpression.h"

/// A piece of an expression's text.
struct ExpressionToken {
    enum Kind { Number, Name, Sign, End } kind = End;
    std::string_view text; // of a name in quotes, what is inside; of a sign, its plain spelling
    std::size_t position = 0;
    double number = 0;
};

/// Cuts a text into tokens. What is none is thrown as an SpxExpressionError.
class ExpressionTokens
{
public:
    explicit ExpressionTokens(std::string_view text);
    ExpressionTokens(const ExpressionTokens&) = delete;
    ExpressionTokens& operator=(const ExpressionTokens&) = delete;

    const ExpressionToken& current() const { return m_current; }
    void advance();

private:
    void skipSpace();
    bool readNumber();
    bool readName();
    bool readQuotedName();
    bool readSign();
    void take(ExpressionToken::Kind kind, std::size_t length);
    std::string_view rest() const { return std::string_view(m_text).substr(m_at); }

    std::string m_text; // a lone number's comma has become a point
    std::size_t m_at = 0;
    ExpressionToken m_current;
};
