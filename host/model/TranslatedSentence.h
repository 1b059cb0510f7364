// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbSentence.h>

#include <QString>

class QFileDevice;

namespace scopix
{

/// In the user's language. For what the reader of models shares, which knows no library of plug-ins.
QString translated(const SbSentence& sentence);
/// Why the last operation on the file failed.
QString translatedErrorOf(const QFileDevice& file);

} // namespace scopix
