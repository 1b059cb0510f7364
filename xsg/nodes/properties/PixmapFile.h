// SPDX-License-Identifier: MIT
// Portable pixmaps, the simplest picture files: P5 (grey) and P6 (red, green, blue), 8 bits deep.
#pragma once

#include <xsg/values/XsgExport.h>

class SoSFImage;

namespace xsg
{

/// False, and the image untouched, where the file cannot be read or is no such picture.
XSG_API bool readPixmap(const char* path, SoSFImage& image);

} // namespace xsg
