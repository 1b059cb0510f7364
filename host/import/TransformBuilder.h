// SPDX-License-Identifier: MIT
// The node that moves what follows it by a matrix.
#pragma once

class SbMatrix;
class SoTransform;
class SoTransformation;

namespace scopix
{

/// A transform whose parts can be tuned one by one where the matrix is a move, a turn and a stretch; the bare
/// matrix where it is not. New, with no reference.
SoTransformation* makePlacement(const SbMatrix& matrix);
/// The same for what is going to be moved, turned and stretched: always a transform, without what of the
/// matrix is none of these.
SoTransform* makeMovablePlacement(const SbMatrix& matrix);

} // namespace scopix
