// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace scopix
{

/// One line, after the program's name. From any thread.
void printOnStandardError(const QString& text);

} // namespace scopix
