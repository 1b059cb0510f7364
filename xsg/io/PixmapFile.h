// Portable pixmaps, the simplest picture files: P5 (grey) and P6 (red, green, blue), 8 bits deep.
#pragma once

#include <xsg/base/XsgExport.h>

class SoSFImage;

namespace xsg
{

// False, and the image untouched, where the file cannot be read or is no such picture.
XSG_API bool readPixmap(const char* path, SoSFImage& image);
// 1 or 3 components; what else the image has is refused. False where it cannot be written.
XSG_API bool writePixmap(const char* path, const SoSFImage& image);

} // namespace xsg
