// SPDX-License-Identifier: MIT
// Between the toolkit's pictures and those of a scene.
#pragma once

#include "model/ModelData.h"

#include <xsg/fields/SoSFImage.h>

#include <QImage>

namespace scopix
{

/// 1 component for grey, 3 for colours, 4 where it lets something through; empty for a null image. Has no
/// name.
ModelData::Picture toPicture(QImage image);

/// Null for one that is empty.
QImage toImage(const SoSFImage& image);

} // namespace scopix
