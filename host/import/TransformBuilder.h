// SPDX-License-Identifier: MIT
// The node that moves what follows it by a matrix.
#pragma once

class SbMatrix;
class SoTransformation;

namespace scopix
{

/// A transform whose parts can be tuned one by one where the matrix is a move, a turn and a stretch; the bare
/// matrix where it is not. New, with no reference.
SoTransformation* makePlacement(const SbMatrix& matrix);

} // namespace scopix
