// SPDX-License-Identifier: MIT
// What is said where a scene repeats its parts more often than a walk follows.
#pragma once

class SoNode;

namespace xsg
{

/// Posts an SoError, the first time for this root.
void reportRepeats(const SoNode& root);

} // namespace xsg
