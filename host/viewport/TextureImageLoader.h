// SPDX-License-Identifier: MIT
#pragma once

class SoSFImage;

namespace scopix
{

/// Reads textures from every kind of image file that Qt reads.
namespace TextureImageLoader
{

/// An SoImageReader, for the renderers of the host's own views and pictures. False, and the image untouched,
/// where the file cannot be read. Any thread.
bool read(const char* path, SoSFImage& image);

} // namespace TextureImageLoader

} // namespace scopix
