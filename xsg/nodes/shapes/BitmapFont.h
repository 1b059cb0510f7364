// SPDX-License-Identifier: MIT
// A small font of 5 by 7 dots, for ASCII. Own code: a font library would bring files to find and install, for
// labels in scenes.
#pragma once

namespace xsg
{

constexpr int DotFontColumns = 5;
constexpr int DotFontRows = 7;

/// Seven rows from the top down, the leftmost dot in the highest of five bits.
const unsigned char* dotLetter(char16_t letter);

} // namespace xsg
