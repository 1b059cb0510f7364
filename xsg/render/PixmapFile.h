// SPDX-License-Identifier: MIT
// Portable pixmaps, the simplest image files: P5 (grey) and P6 (red, green, blue), 8 bits deep. Own code
// instead of a decoder library, which would expose every renderer to damaged files of formats that it may
// never need; who wants more formats sets an SoImageReader.
#pragma once

#include <xsg/render/SoImageReader.h>
#include <xsg/values/XsgExport.h>

class SoSFImage;

namespace xsg
{

/// False, and the image untouched, where the file cannot be read or is none of these, or where `fit` has no
/// room for it.
XSG_API bool readPixmap(const char* path, SoSFImage& image, const SoImageFit& fit);

} // namespace xsg
