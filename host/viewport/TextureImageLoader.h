// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/SoImageReader.h>

namespace scopix
{

/// Reads textures from every kind of image file that Qt reads.
namespace TextureImageLoader
{

/// An SoFittingImageReader, for the renderers of the host's own views and pictures. False, and the image
/// untouched, where the file cannot be read or there is no room for it. Any thread.
bool read(const char* path, const SoImageFit& fit, SoSFImage& image);

} // namespace TextureImageLoader

} // namespace scopix
