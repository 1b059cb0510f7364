// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>
#include <xsg/values/SbSentence.h>

#include <QString>

namespace SpxSentence
{

/// The sentence in the user's language, with what stands in it; in English where nobody has translated it.
/// Plug-ins show so what scene-graph library and formulas say. Any thread.
SPX_API QString translated(const SbSentence& sentence);

} // namespace SpxSentence
