// SPDX-License-Identifier: MIT
// The kinds of model files that can be opened.
#pragma once

#include <QStringList>

namespace scopix
{

/// The endings of file names that can be read, in lower case, the most common first.
QStringList modelEndings();

} // namespace scopix
