// SPDX-License-Identifier: MIT
// How one value is seen as a row of cells.
#pragma once

#include <xsg/values/SbBox.h>
#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbPlane.h>
#include <xsg/values/SbRotation.h>
#include <xsg/values/SbTime.h>
#include <xsg/values/SbVec.h>

#include <QStringList>

#include <algorithm>
#include <type_traits>

namespace inspector
{

/// Number is the type of a cell; get() and set() reach one, without rounding.
template <class T, class = void>
struct CellTraits;

template <class T>
struct CellTraits<T, std::enable_if_t<std::is_arithmetic_v<T>>> {
    using Number = T;
    static QStringList headings() { return {QStringLiteral("value")}; }
    static T get(T value, int /*column*/) { return value; }
    static void set(T& value, int /*column*/, T number) { value = number; }
};

template <>
struct CellTraits<SbTime> {
    using Number = double;
    static QStringList headings() { return {QStringLiteral("seconds")}; }
    static double get(SbTime value, int /*column*/) { return value.getValue(); }
    static void set(SbTime& value, int /*column*/, double number) { value = number; }
};

template <class T, int N>
struct CellTraits<SbVec<T, N>> {
    using Number = T;
    static QStringList headings() { return QStringList{"x", "y", "z", "w"}.mid(0, N); }
    static T get(const SbVec<T, N>& value, int column) { return value[column]; }
    static void set(SbVec<T, N>& value, int column, T number) { value[column] = number; }
};

template <>
struct CellTraits<SbMatrix> {
    using Number = float;
    static QStringList headings()
    {
        QStringList all;
        for (int i = 0; i < 16; ++i)
            all.append(QStringLiteral("m%1%2").arg(i / 4 + 1).arg(i % 4 + 1));
        return all;
    }
    static float get(const SbMatrix& value, int column) { return value.getValue()[column]; }
    static void set(SbMatrix& value, int column, float number) { value[column / 4][column % 4] = number; }
};

template <>
struct CellTraits<SbRotation> {
    using Number = float;
    static QStringList headings() { return {"x", "y", "z", "w"}; }
    static float get(const SbRotation& value, int column) { return value.getValue()[column]; }
    static void set(SbRotation& value, int column, float number)
    {
        float four[4];
        std::copy_n(value.getValue(), 4, four);
        four[column] = number;
        value.setValue(four);
    }
};

template <>
struct CellTraits<SbPlane> {
    using Number = float;
    static QStringList headings() { return {"nx", "ny", "nz", "d"}; }
    static float get(const SbPlane& value, int column)
    {
        return column < 3 ? value.getNormal()[column] : value.getDistanceFromOrigin();
    }
    static void set(SbPlane& value, int column, float number)
    {
        SbVec3f normal = value.getNormal();
        float distance = value.getDistanceFromOrigin();
        (column < 3 ? normal[column] : distance) = number;
        value = SbPlane(normal, distance);
    }
};

template <>
struct CellTraits<SbBox3f> {
    using Number = float;
    static QStringList headings() { return {"min x", "min y", "min z", "max x", "max y", "max z"}; }
    static float get(const SbBox3f& value, int column)
    {
        return column < 3 ? value.getMin()[column] : value.getMax()[column - 3];
    }
    static void set(SbBox3f& value, int column, float number)
    {
        SbVec3f min = value.getMin();
        SbVec3f max = value.getMax();
        (column < 3 ? min[column] : max[column - 3]) = number;
        value = SbBox3f(min, max);
    }
};

} // namespace inspector
