// SPDX-License-Identifier: MIT
// The text of lists of numbers and of vectors, as fast as std::to_chars writes the numbers themselves: with
// {fmt} the separators of vectors in lists would still be placed here.
#pragma once

#include <xsg/values/ValueNumbers.h>
#include <xsg/values/ValueText.h>

#include <vector>

namespace xsg
{

/// The numbers of a value that is nothing but a row of them.
template <class T>
const T* numbersOf(const T& value)
{
    return &value;
}
template <class T, int N>
const T* numbersOf(const SbVec<T, N>& value)
{
    return value.getValue();
}
inline const float* numbersOf(const SbColor& value)
{
    return value.getValue();
}
inline const float* numbersOf(const SbMatrix& value)
{
    return value.getValue();
}
inline const float* numbersOf(const SbRotation& value)
{
    return value.getValue();
}
template <class T>
constexpr bool isRowOfNumbers =
    std::is_arithmetic_v<std::remove_pointer_t<decltype(numbersOf(std::declval<T>()))>> &&
    !std::is_same_v<T, SbBool>;

/// Through a buffer of its own, since a string takes its time for every piece that it is given.
template <class T>
void writeNumbers(std::string& out, const std::vector<T>& values)
{
    constexpr std::size_t LongestNumber = 32;
    char buffer[4096];
    char* at = buffer;
    char* const full = buffer + sizeof buffer - LongestNumber - 2;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto* numbers = numbersOf(values[i]);
        for (int k = 0; k < ValueNumbers<T>::Count; ++k) {
            if (k > 0) {
                *at++ = ' ';
            } else if (i > 0) {
                *at++ = ',';
                *at++ = ' ';
            }
            at = std::to_chars(at, at + LongestNumber, numbers[k]).ptr;
            if (at > full) {
                out.append(buffer, at);
                at = buffer;
            }
        }
    }
    out.append(buffer, at);
}

} // namespace xsg
