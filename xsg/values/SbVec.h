// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <array>
#include <cmath>
#include <cstddef>

/// Small vectors of numbers. Plain values: components in order x, y, z, w; a default one is all zero.
template <class T, int N>
class XSG_API SbVec
{
public:
    using Scalar = T;
    static constexpr int Size = N;

    constexpr SbVec() = default;
    explicit constexpr SbVec(const T* values) { setValue(values); }
    template <class... Rest, std::enable_if_t<sizeof...(Rest) + 2 == N, int> = 0>
    constexpr SbVec(T x, T y, Rest... rest)
        : m_values{x, y, static_cast<T>(rest)...}
    {
    }

    constexpr T& operator[](int i) { return m_values[static_cast<std::size_t>(i)]; }
    constexpr const T& operator[](int i) const { return m_values[static_cast<std::size_t>(i)]; }
    constexpr const T* getValue() const { return m_values.data(); }
    constexpr void setValue(const T* values)
    {
        for (int i = 0; i < N; ++i)
            (*this)[i] = values[i];
    }
    template <class... Rest, std::enable_if_t<sizeof...(Rest) + 2 == N, int> = 0>
    constexpr void setValue(T x, T y, Rest... rest)
    {
        m_values = {x, y, static_cast<T>(rest)...};
    }

    constexpr T dot(const SbVec& o) const
    {
        T sum{};
        for (int i = 0; i < N; ++i)
            sum = static_cast<T>(sum + (*this)[i] * o[i]);
        return sum;
    }
    T length() const { return static_cast<T>(std::sqrt(static_cast<double>(dot(*this)))); }
    /// A vector without a direction stays as it is.
    SbVec normalized() const
    {
        const T l = length();
        return l > T{} ? *this * (T{1} / l) : *this;
    }

    friend constexpr bool operator==(const SbVec& a, const SbVec& b) { return a.m_values == b.m_values; }
    friend constexpr bool operator!=(const SbVec& a, const SbVec& b) { return !(a == b); }
    friend constexpr SbVec operator+(SbVec a, const SbVec& b)
    {
        for (int i = 0; i < N; ++i)
            a[i] = static_cast<T>(a[i] + b[i]);
        return a;
    }
    friend constexpr SbVec operator-(SbVec a, const SbVec& b)
    {
        for (int i = 0; i < N; ++i)
            a[i] = static_cast<T>(a[i] - b[i]);
        return a;
    }
    friend constexpr SbVec operator*(SbVec a, T factor)
    {
        for (int i = 0; i < N; ++i)
            a[i] = static_cast<T>(a[i] * factor);
        return a;
    }

private:
    std::array<T, N> m_values{};
};

using SbVec2f = SbVec<float, 2>;
using SbVec3f = SbVec<float, 3>;
using SbVec4f = SbVec<float, 4>;
using SbVec2d = SbVec<double, 2>;
using SbVec3d = SbVec<double, 3>;
using SbVec4d = SbVec<double, 4>;
using SbVec2i32 = SbVec<int, 2>;
using SbVec2s = SbVec<short, 2>;
using SbVec3s = SbVec<short, 3>;

template <class T>
constexpr SbVec<T, 3> cross(const SbVec<T, 3>& a, const SbVec<T, 3>& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// Red, green, blue, normally 0 to 1; values beyond are kept.
class XSG_API SbColor : public SbVec3f
{
public:
    using SbVec3f::SbVec3f;
    constexpr SbColor() = default;
    constexpr SbColor(const SbVec3f& rgb) // NOLINT(google-explicit-constructor)
        : SbVec3f(rgb)
    {
    }
};
