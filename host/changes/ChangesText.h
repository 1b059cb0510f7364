// SPDX-License-Identifier: MIT
// Changes as text for other programs.
#pragma once

#include "changes/ChangeSource.h"

namespace scopix
{

/// A statement for each value, with the path as a comment; what is no value is a comment.
QString changesAsCpp(const ChangeSource& source, const ChangeKeySet& keys);
/// The nodes with the values that differ and no others, as they stand in a scene file; those that were added,
/// whole.
QString changesAsScene(const ChangeSource& source, const ChangeKeySet& keys);

} // namespace scopix
