// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace xsg
{

bool isSpace(char c);
/// Letters of ASCII; what is beyond stays.
std::string toLower(std::string_view text);
/// Whether `text` contains `lower`, which is in lower case.
bool containsIgnoringCase(std::string_view text, std::string_view lower);
bool equalsIgnoringCase(std::string_view text, std::string_view lower);
/// A name's text, which is Latin-1, as UTF-8.
std::string nameToUtf8(const char* latin1);
/// The numbers of a text such as "1 2.5" or "nan"; none where anything else is in it.
std::vector<double> numbersOf(std::string_view text);

} // namespace xsg
