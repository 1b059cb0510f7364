// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Geometry>

namespace scopix::live
{

/// Whether everything that the geometry draws lies within its arrays.
bool isWithinArrays(const osg::Geometry& geometry);

/// Makes the next frame take over the arrays and primitives of the geometry, wherever in memory they lie.
/// Between frames only.
///
/// What draws knows an array again by its address and its modified count. An array that was made where one
/// lay that has ended, with the same count, is taken for that one: it would be read at the place of the
/// former one in a buffer that is gone. So each call sets counts that no array had before.
void renewArrays(osg::Geometry& geometry);

} // namespace scopix::live
