// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class SoSFImage;

/// How a renderer reads the image files that textures name: fills `image`, rows from the bottom up, and
/// returns true; or returns false and leaves it alone. It runs on the thread that draws, and throws nothing.
using SoImageReader = std::function<bool(const char* path, SoSFImage& image)>;
