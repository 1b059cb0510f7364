// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

namespace profiler
{

/// The bytes as text: UTF-8, or else Latin-1.
QString decoded(std::string_view bytes);
/// As one harmless row: control characters as pictures, what turns the direction of text as "�", tabs as
/// blanks, and what is longer than anybody reads cut off.
QString shownText(std::string_view bytes);

} // namespace profiler
