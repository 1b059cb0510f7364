// SPDX-License-Identifier: MIT
// From the toolkit's pictures to those of a scene.
#pragma once

#include "model/ModelData.h"

#include <QImage>

namespace scopix
{

/// 1 component for grey, 3 for colours, 4 where it lets something through; empty for a null image. Has no
/// name.
ModelData::Picture toPicture(QImage image);

} // namespace scopix
