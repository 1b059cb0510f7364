// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/values/LiveSentence.h>

#include <QString>

namespace scopix
{

/// In the user's language.
QString toText(const live::Sentence& sentence);
/// What a program said, in the user's language where the sentence is known, else as it came; printable().
QString toText(const std::string& words);

} // namespace scopix
