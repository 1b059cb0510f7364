// SPDX-License-Identifier: MIT
// Texts of unknown origin, such as names and contents of files, within messages.
#pragma once

#include <xsg/values/SbSentence.h>
#include <xsg/values/XsgExport.h>

#include <string>
#include <string_view>

namespace xsg
{

/// The text as one line that is harmless wherever it is shown, valid UTF-8: bytes that are none, and
/// characters that control a terminal, end a line or turn the direction of writing, appear as "\x1B" or
/// "\u202E". Of a very long one the middle is left out.
XSG_API std::string printable(std::string_view text);
/// The same of what stands in the sentence, and of the sentence as a whole.
inline SbSentence printable(const SbSentence& sentence)
{
    return sentence.withValues([](const std::string& text) { return printable(text); });
}

} // namespace xsg
