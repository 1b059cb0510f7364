// SPDX-License-Identifier: MIT
#pragma once

#include "Check.h"

#include <scopix/editing/expression/SpxExpression.h>

#include <cmath>
#include <string_view>

namespace fuzz
{

/// What must hold whatever text is compiled: a value, the same each time, or one sentence about a place in
/// the text.
class ExpressionCheck
{
public:
    /// The first byte chooses the quantity.
    void operator()(const std::uint8_t* data, std::size_t size)
    {
        if (size < 1)
            return;
        SpxExpressionSettings settings{{"x", "row"}, SpxQuantity(data[0] % 4), data[0] % 8 < 4 ? 1 : 0.5};
        const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
        const SpxExpression expression(text, settings);
        if (expression.isValid())
            checkValue(expression);
        else
            checkError(expression.getError(), text);
    }

private:
    static void checkValue(const SpxExpression& expression)
    {
        const double values[] = {2.5, 7};
        const double first = expression.evaluate(values);
        const double second = expression.evaluate(values);
        require(first == second || (std::isnan(first) && std::isnan(second)), "two values");
        require(expression.getError().sentence.empty(), "a value and an error");
    }
    static void checkError(const SpxExpressionError& error, std::string_view text)
    {
        require(error.position <= text.size(), "the error's place lies beyond the text");
        require(!error.sentence.empty() && error.sentence.getText().back() == '.',
                "the error is no sentence");
        require(std::isnan(SpxExpression(text).evaluate()) || SpxExpression(text).isValid(),
                "a value of what is not valid");
    }
};

} // namespace fuzz
