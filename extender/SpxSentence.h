// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>
#include <xsg/values/SbSentence.h>

#include <QString>

class QFileDevice;

namespace SpxSentence
{

/// The sentence in the user's language, with what stands in it; in English where nobody has translated it.
/// Plug-ins show so what scene-graph library and formulas say. Any thread.
SPX_API QString translated(const SbSentence& sentence);

/// Why the last operation on the file failed, in the user's language where systemReason() has words for it.
/// Any thread that may use the file.
SPX_API QString ofFileError(const QFileDevice& file);

} // namespace SpxSentence
