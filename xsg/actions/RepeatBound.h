// SPDX-License-Identifier: MIT
// What is said where a scene repeats its parts more often than can be followed.
#pragma once

#include <string>

class SoNode;

namespace xsg
{

/// Posts an SoError, the first time that this is said of this root: its name (or "The scene"), a blank and
/// the rest of the sentence.
void reportBound(const SoNode& root, const std::string& rest);

/// The same, of a walk over what groups share.
void reportRepeats(const SoNode& root);

/// The same, of instances of which some are left out.
void reportInstances(const SoNode& root);

} // namespace xsg
