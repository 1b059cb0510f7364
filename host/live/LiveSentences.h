// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/values/LiveSentence.h>

#include <QString>

namespace scopix
{

/// In the user's language; what a program said itself stays as it came.
QString toText(const live::Sentence& sentence);

} // namespace scopix
