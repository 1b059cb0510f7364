// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/SoImageReader.h>

namespace profiler
{

/// Reads the image files of textures for pictures that are only measured.
bool readPicture(const char* path, const SoImageFit& fit, SoSFImage& image);

} // namespace profiler
