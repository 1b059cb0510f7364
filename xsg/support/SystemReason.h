// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbSentence.h>
#include <xsg/values/XsgExport.h>

#include <string>

namespace xsg
{

/// What the system says by this value of errno, as the end of a sentence: in words of the catalogues for what
/// files meet, else in those of the C library, whose language is the system's (decisions.md: system-words).
/// Any thread.
XSG_API SbSentence systemReason(int code);

/// Likewise by the words that a library has taken from the system, in English or the system's language; other
/// words stay as they are.
XSG_API SbSentence systemReasonOf(const std::string& words);

} // namespace xsg
