// SPDX-License-Identifier: MIT
// Texts of unknown origin, such as names and contents of files, within messages.
#pragma once

#include <QString>

namespace scopix
{

/// One line that is harmless wherever it is shown: what controls a terminal, ends a line or turns the
/// direction of writing appears as "\x1B" or "\u202E", and of a very long text the middle is left out.
QString printable(const QString& text);

} // namespace scopix
