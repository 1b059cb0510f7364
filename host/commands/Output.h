// SPDX-License-Identifier: MIT
// What commands say: results on standard output, what is wrong on standard error.
#pragma once

#include <string>

namespace scopix
{

/// Once standard output takes nothing more, as when a pipe is closed, the rest is dropped.
void print(const std::string& text);
/// False where some of what was printed did not arrive; said then.
bool finishPrinting();
/// "scopix: SENTENCE", one harmless line.
void complain(const std::string& sentence);
/// The same for something that is no reason to stop.
void warn(const std::string& sentence);

} // namespace scopix
