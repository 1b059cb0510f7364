// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/values/LiveSentence.h>

namespace scopix::live
{

/// What a program said, in English as everything that it sends, as a sentence that can be translated: server
/// and adapters of whatever version say the same in the same words, by which they are known. What others say,
/// such as an adapter of the program's own, stays as it came (decisions.md: program-words). Any thread.
SCOPIX_LIVE_API Sentence sentenceOfProgram(const std::string& words);

/// With their places, as in the sources of server and adapters, up to a null.
SCOPIX_LIVE_API extern const char* const SentencesOfPrograms[];

} // namespace scopix::live
