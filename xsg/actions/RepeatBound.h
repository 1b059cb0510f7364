// SPDX-License-Identifier: MIT
// What is said where a scene repeats its parts more often than can be followed.
#pragma once

#include <xsg/values/SbSentence.h>

class SoNode;

namespace xsg
{

/// The root by its name, or "The scene": what a sentence begins with.
SbSentence nameOfRoot(const SoNode& root);

/// Posts an SoError, the first time that this is said of this root.
void reportBound(const SoNode& root, const SbSentence& sentence);

/// The same, of a walk over what groups share.
void reportRepeats(const SoNode& root);

/// The same, of instances of which some are left out.
void reportInstances(const SoNode& root);

} // namespace xsg
