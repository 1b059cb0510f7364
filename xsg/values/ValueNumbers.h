// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbBox.h>
#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbPlane.h>
#include <xsg/values/SbRotation.h>
#include <xsg/values/SbTime.h>
#include <xsg/values/SbVec.h>

#include <limits>
#include <type_traits>

namespace xsg
{

/// The nearest number that T can hold; fractions are cut off for integers, and what is no number becomes 0.
template <class T>
T toNumber(double value)
{
    if constexpr (std::is_same_v<T, bool>) {
        return value != 0;
    } else if constexpr (std::is_integral_v<T>) {
        if (!(value == value)) // NaN
            return 0;
        if (value <= static_cast<double>(std::numeric_limits<T>::min()))
            return std::numeric_limits<T>::min();
        if (value >= static_cast<double>(std::numeric_limits<T>::max()))
            return std::numeric_limits<T>::max();
        return static_cast<T>(value);
    } else {
        if constexpr (std::is_same_v<T, float>) {
            // Beyond float's range; infinities stay what they are.
            constexpr double Largest = std::numeric_limits<float>::max();
            if (std::isfinite(value) && std::abs(value) > Largest)
                value = value > 0 ? Largest : -Largest;
        }
        return static_cast<T>(value);
    }
}

/// How a value is seen as a row of numbers, for conversions between types that have the same count of them.
///
/// No numbers: strings, names, references.
template <class T, class = void>
struct ValueNumbers {
    static constexpr int Count = 0;
    static double get(const T& /*value*/, int /*which*/) { return 0; }
    static void set(T& /*value*/, int /*which*/, double /*number*/) {}
};

template <class T>
struct ValueNumbers<T, std::enable_if_t<std::is_arithmetic_v<T>>> {
    static constexpr int Count = 1;
    static double get(T value, int /*which*/) { return static_cast<double>(value); }
    static void set(T& value, int /*which*/, double number)
    {
        // The stored form of a bool in a list is a byte of 0 or 1.
        if constexpr (std::is_same_v<T, unsigned char>)
            value = number != 0;
        else
            value = toNumber<T>(number);
    }
};

template <>
struct ValueNumbers<SbTime> {
    static constexpr int Count = 1;
    static double get(SbTime value, int /*which*/) { return value.getValue(); }
    static void set(SbTime& value, int /*which*/, double number) { value = number; }
};

template <class T, int N>
struct ValueNumbers<SbVec<T, N>> {
    static constexpr int Count = N;
    static double get(const SbVec<T, N>& value, int which) { return static_cast<double>(value[which]); }
    static void set(SbVec<T, N>& value, int which, double number) { value[which] = toNumber<T>(number); }
};
template <>
struct ValueNumbers<SbColor> : ValueNumbers<SbVec3f> {
};

template <>
struct ValueNumbers<SbMatrix> {
    static constexpr int Count = 16;
    static double get(const SbMatrix& value, int which)
    {
        return static_cast<double>(value.getValue()[which]);
    }
    static void set(SbMatrix& value, int which, double number) { value[0][which] = toNumber<float>(number); }
};

template <>
struct ValueNumbers<SbRotation> {
    static constexpr int Count = 4;
    static double get(const SbRotation& value, int which)
    {
        return static_cast<double>(value.getValue()[which]);
    }
    static void set(SbRotation& value, int which, double number)
    {
        float four[4];
        std::copy_n(value.getValue(), 4, four);
        four[which] = toNumber<float>(number);
        value.setValue(four);
    }
};

template <>
struct ValueNumbers<SbPlane> {
    static constexpr int Count = 4;
    static double get(const SbPlane& value, int which)
    {
        return static_cast<double>(which < 3 ? value.getNormal()[which] : value.getDistanceFromOrigin());
    }
    static void set(SbPlane& value, int which, double number)
    {
        SbVec3f normal = value.getNormal();
        float distance = value.getDistanceFromOrigin();
        (which < 3 ? normal[which] : distance) = toNumber<float>(number);
        value = SbPlane(normal, distance);
    }
};

template <class Box, class Corner>
struct BoxNumbers {
    static constexpr int Count = 6;
    static double get(const Box& value, int which)
    {
        return static_cast<double>(which < 3 ? value.getMin()[which] : value.getMax()[which - 3]);
    }
    static void set(Box& value, int which, double number)
    {
        Corner min = value.getMin();
        Corner max = value.getMax();
        (which < 3 ? min[which] : max[which - 3]) = toNumber<typename Corner::Scalar>(number);
        value = Box(min, max);
    }
};
template <>
struct ValueNumbers<SbBox3s> : BoxNumbers<SbBox3s, SbVec3s> {
};
template <>
struct ValueNumbers<SbBox3f> : BoxNumbers<SbBox3f, SbVec3f> {
};

} // namespace xsg
