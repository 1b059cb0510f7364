// SPDX-License-Identifier: MIT
#include "QueryText.h"

#include <xsg/values/Utf.h>

#include <algorithm>
#include <charconv>
#include <limits>

namespace xsg
{

namespace
{

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameLetter(char any, char lowerCase)
{
    return lower(any) == lowerCase;
}

// std::from_chars refuses a plus sign.
bool readNumber(const char*& at, const char* end, double& number)
{
    const char* start = at != end && *at == '+' ? at + 1 : at;
    const auto result = std::from_chars(start, end, number);
    if (result.ec == std::errc::invalid_argument || (result.ptr != end && !isSpace(*result.ptr)))
        return false;
    if (result.ec == std::errc::result_out_of_range)
        number = *start == '-' ? -std::numeric_limits<double>::infinity()
                               : std::numeric_limits<double>::infinity();
    at = result.ptr;
    return true;
}

} // namespace

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

std::string toLower(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lower);
    return result;
}

bool containsIgnoringCase(std::string_view text, std::string_view lower)
{
    return std::search(text.begin(), text.end(), lower.begin(), lower.end(), sameLetter) != text.end() ||
           lower.empty();
}

bool equalsIgnoringCase(std::string_view text, std::string_view lower)
{
    return text.size() == lower.size() && std::equal(text.begin(), text.end(), lower.begin(), sameLetter);
}

std::string nameToUtf8(const char* latin1)
{
    std::string text;
    for (const char* at = latin1; *at; ++at)
        appendUtf8(text, static_cast<unsigned char>(*at));
    return text;
}

std::vector<double> numbersOf(std::string_view text)
{
    std::vector<double> numbers;
    const char* at = text.data();
    const char* end = at + text.size();
    while (at != end) {
        if (isSpace(*at)) {
            ++at;
            continue;
        }
        double number = 0;
        if (!readNumber(at, end, number))
            return {};
        numbers.push_back(number);
    }
    return numbers;
}

} // namespace xsg
