// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbMatrix.h>

#include <array>

namespace inspector
{

/// A matrix as what it does: it scales along the axes, then turns about x, y and z, then moves. Angles in
/// radians.
struct MatrixParts {
    enum Part { Translation, Rotation, Scale };
    enum class Shape {
        Plain,       // made of these parts, and of nothing else
        Sheared,     // its axes are not at right angles
        Flat,        // it squeezes space flat, or has numbers that are not finite
        Perspective, // its last column is not 0 0 0 1
    };

    static Shape shapeOf(const SbMatrix& matrix);
    /// Of a plain matrix.
    static MatrixParts of(const SbMatrix& matrix);

    /// Changes one number of one part in both, in the matrix nothing but what depends on it.
    void change(SbMatrix& matrix, Part part, int which, double number);

    std::array<std::array<double, 3>, 3> numbers{}; // by part
};

} // namespace inspector
