// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxEditingExport.h>
#include <xsg/values/SbSentence.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What a number measures, which decides the units that may follow one.
enum class SpxQuantity { Number, Angle, Length, Time };

/// Why a text is no expression: one sentence, and where, as an offset in bytes.
struct SpxExpressionError {
    std::size_t position = 0;
    SbSentence sentence;
};

/// What a text may use besides numbers.
struct SpxExpressionSettings {
    /// Names whose values evaluate() is given, in this order. "x" among them is the present value, which
    /// "+= 1" and its kin change.
    std::vector<std::string> variables;
    SpxQuantity quantity = SpxQuantity::Number;
    /// The unit of numbers without one, of variables and of the result, in radians, metres or seconds: 1, or
    /// 0.017453 where angles are in degrees.
    double unit = 1;
};

/// A formula for one number, compiled once and evaluated as often as wanted: numbers with units (90deg, 30
/// cm), + - * /
/// ^, comparisons (1 or 0), && || !, pi and other constants, functions such as clamp(x, 0, 1), variables, and
/// changes of the present value (+= 10 %). It has no side effects, and its length, depth and time are
/// limited. Nothing throws. Copies share the compiled form. May be used on any thread.
///
/// A comma separates arguments; it is a decimal sign in a text that is a single number and has no point.
/// Functions of angles take and give radians, or the settings' unit where the quantity is an angle.
class SPX_EDITING_API SpxExpression
{
public:
    static constexpr std::size_t MaximumLength = 1000; // bytes
    static constexpr int MaximumDepth = 64;

    /// Not valid.
    SpxExpression() noexcept = default;
    explicit SpxExpression(std::string_view text, const SpxExpressionSettings& settings = {}) noexcept;

    bool isValid() const noexcept { return m_program != nullptr; }
    const SpxExpressionError& getError() const noexcept { return m_error; }

    /// `values` has one for each of the variables; null where there are none. As floating-point arithmetic
    /// has it, the result may be infinite or not a number; so it is for an expression that is not valid.
    double evaluate(const double* values = nullptr) const noexcept;

    class Program;

private:
    std::shared_ptr<const Program> m_program;
    SpxExpressionError m_error;
};
