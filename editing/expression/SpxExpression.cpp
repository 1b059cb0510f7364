// SPDX-License-Identifier: MIT
#include "SpxExpression.h"

#include "ExpressionParser.h"
#include "ExpressionProgram.h"

#include <algorithm>
#include <array>
#include <exception>
#include <limits>

void SpxExpression::Program::add(const Step& step, int growth)
{
    m_steps.push_back(step);
    m_height += growth;
    m_greatestHeight = std::max(m_greatestHeight, m_height);
}

double SpxExpression::Program::run(const double* variables) const noexcept
{
    std::array<double, StackSize>
        stack; // NOLINT(cppcoreguidelines-pro-type-member-init): only as high as written
    double* top = stack.data();
    for (const Step& step : m_steps) {
        if (step.kind == Step::Call) {
            top -= step.index;
            *top = step.function(top, step.index);
        } else {
            *top = step.kind == Step::Number ? step.number : variables[step.index];
        }
        ++top;
    }
    return stack.front();
}

SpxExpression::SpxExpression(std::string_view text, const SpxExpressionSettings& settings) noexcept
{
    try {
        auto program = std::make_shared<Program>();
        ExpressionParser(text, settings, *program).parse();
        m_program = std::move(program);
    } catch (SpxExpressionError& error) {
        m_error = std::move(error);
    } catch (const std::exception&) {
        m_error = {}; // there is not even memory for a sentence
    }
}

double SpxExpression::evaluate(const double* values) const noexcept
{
    return m_program ? m_program->run(values) : std::numeric_limits<double>::quiet_NaN();
}
