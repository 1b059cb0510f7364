// SPDX-License-Identifier: MIT
#include "fields/MatrixParts.h"

#include <algorithm>
#include <cmath>

namespace inspector
{

namespace
{

constexpr double MostShear = 1e-4; // cosine between two axes; what single precision adds up to is below it
constexpr double LeastScale = 1e-12;

using Vector = std::array<double, 3>;

Vector rowOf(const SbMatrix& matrix, int row)
{
    return {double(matrix[row][0]), double(matrix[row][1]), double(matrix[row][2])};
}

double dot(const Vector& a, const Vector& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

double length(const Vector& vector)
{
    return std::sqrt(dot(vector, vector));
}

double determinant(const std::array<Vector, 3>& rows)
{
    const Vector cross{rows[1][1] * rows[2][2] - rows[1][2] * rows[2][1],
                       rows[1][2] * rows[2][0] - rows[1][0] * rows[2][2],
                       rows[1][0] * rows[2][1] - rows[1][1] * rows[2][0]};
    return dot(rows[0], cross);
}

// Where the axes go: points are rows. First about x, then y, then z.
std::array<Vector, 3> axesOf(const Vector& angles)
{
    const double sa = std::sin(angles[0]);
    const double ca = std::cos(angles[0]);
    const double sb = std::sin(angles[1]);
    const double cb = std::cos(angles[1]);
    const double sc = std::sin(angles[2]);
    const double cc = std::cos(angles[2]);
    return {Vector{cb * cc, cb * sc, -sb}, Vector{sa * sb * cc - ca * sc, sa * sb * sc + ca * cc, sa * cb},
            Vector{ca * sb * cc + sa * sc, ca * sb * sc - sa * cc, ca * cb}};
}

Vector anglesOf(const std::array<Vector, 3>& axes)
{
    const double sine = std::clamp(-axes[0][2], -1.0, 1.0);
    if (std::fabs(sine) > 0.999999) // x and z turn about the same axis: all of it is given to x
        return {std::atan2(sine * axes[1][0], axes[1][1]), std::asin(sine), 0};
    return {std::atan2(axes[1][2], axes[2][2]), std::asin(sine), std::atan2(axes[0][1], axes[0][0])};
}

// What sines leave of a right angle is 0.
float cleaned(double number, double scale)
{
    return std::fabs(number) < 1e-15 * std::fabs(scale) ? 0.F : float(number);
}

void writeRow(SbMatrix& matrix, int row, const Vector& direction, double scale)
{
    for (int i = 0; i < 3; ++i)
        matrix[row][i] = cleaned(direction[std::size_t(i)] * scale, scale);
}

} // namespace

MatrixParts::Shape MatrixParts::shapeOf(const SbMatrix& matrix)
{
    const float* values = matrix.getValue();
    if (!std::all_of(values, values + 16, [](float value) { return std::isfinite(value); }))
        return Shape::Flat;
    if (values[3] != 0 || values[7] != 0 || values[11] != 0 || values[15] != 1)
        return Shape::Perspective;
    for (int row = 0; row < 3; ++row) {
        if (length(rowOf(matrix, row)) < LeastScale)
            return Shape::Flat;
    }
    for (int row = 0; row < 3; ++row) {
        const Vector a = rowOf(matrix, row);
        const Vector b = rowOf(matrix, (row + 1) % 3);
        if (std::fabs(dot(a, b)) > MostShear * length(a) * length(b))
            return Shape::Sheared;
    }
    return Shape::Plain;
}

MatrixParts MatrixParts::of(const SbMatrix& matrix)
{
    MatrixParts parts;
    parts.numbers[Translation] = rowOf(matrix, 3);
    std::array<Vector, 3> axes{rowOf(matrix, 0), rowOf(matrix, 1), rowOf(matrix, 2)};
    const bool mirrors = determinant(axes) < 0;
    for (std::size_t row = 0; row < 3; ++row) {
        double& scale = parts.numbers[Scale][row];
        scale = mirrors && row == 0 ? -length(axes[row]) : length(axes[row]);
        for (double& number : axes[row])
            number /= scale;
    }
    parts.numbers[Rotation] = anglesOf(axes);
    return parts;
}

void MatrixParts::change(SbMatrix& matrix, Part part, int which, double number)
{
    double& present = numbers[part][std::size_t(which)];
    if (present == number)
        return;
    const Vector former = rowOf(matrix, which);
    const double formerScale = present;
    present = number;
    if (part == Translation) {
        matrix[3][which] = float(number);
        return;
    }
    const std::array<Vector, 3> axes = axesOf(numbers[Rotation]);
    if (part == Scale) {
        Vector direction = axes[std::size_t(which)];
        if (std::fabs(formerScale) >= LeastScale)
            direction = {former[0] / formerScale, former[1] / formerScale, former[2] / formerScale};
        return writeRow(matrix, which, direction, number);
    }
    for (int row = 0; row < 3; ++row)
        writeRow(matrix, row, axes[std::size_t(row)], numbers[Scale][std::size_t(row)]);
}

} // namespace inspector
