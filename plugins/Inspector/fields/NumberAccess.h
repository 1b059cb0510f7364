// SPDX-License-Identifier: MIT
#pragma once

class SoField;

namespace inspector
{

/// How the numbers of a field's value are read and written, whatever its type. Of a list it is the first
/// value. What the type cannot hold becomes its nearest number.
struct NumberAccess {
    int count = 0; // 3 of a vector with three components
    bool isInteger = false;
    bool isFloat = false; // single precision
    double lowest = 0;
    double highest = 0;
    double (*get)(const SoField& field, int which) = nullptr;
    void (*set)(SoField& field, int which, double number) = nullptr;

    /// Null for values that are not made of numbers.
    static const NumberAccess* of(const SoField& field);
};

} // namespace inspector
