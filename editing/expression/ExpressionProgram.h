// SPDX-License-Identifier: MIT
#pragma once

#include "ExpressionFunctions.h"
#include "SpxExpression.h"

/// The compiled form: the steps of a machine with a stack of numbers.
class SpxExpression::Program
{
public:
    void pushNumber(double number) { add({Step::Number, number, 0, nullptr}, 1); }
    void pushVariable(std::size_t index) { add({Step::Variable, 0, index, nullptr}, 1); }
    /// Replaces the topmost `count` numbers by one.
    void call(ExpressionCall function, std::size_t count)
    {
        add({Step::Call, 0, count, function}, 1 - static_cast<int>(count));
    }
    bool fitsStack() const { return m_greatestHeight <= StackSize; }
    double run(const double* variables) const noexcept;

private:
    static constexpr int StackSize = 256;
    struct Step {
        enum Kind { Number, Variable, Call } kind;
        double number;
        std::size_t index; // of the variable, or how many numbers a call takes
        ExpressionCall function;
    };
    void add(const Step& step, int growth);

    std::vector<Step> m_steps;
    int m_height = 0;
    int m_greatestHeight = 0;
};
