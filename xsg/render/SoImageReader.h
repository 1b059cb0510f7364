// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class SoSFImage;

/// How a renderer reads the image files that textures name: fills `image`, rows from the bottom up, and
/// returns true; or returns false and leaves it alone. It runs on the thread that draws, and throws nothing.
using SoImageReader = std::function<bool(const char* path, SoSFImage& image)>;

/// In pixels.
struct SoImageSize {
    int width = 0;
    int height = 0;
    bool isEmpty() const { return width <= 0 || height <= 0; }
    friend bool operator==(const SoImageSize& a, const SoImageSize& b)
    {
        return a.width == b.width && a.height == b.height;
    }
    friend bool operator!=(const SoImageSize& a, const SoImageSize& b) { return !(a == b); }
};

/// Says how large a picture may become that has this size and takes so many bytes a pixel: as large as it is,
/// smaller, or empty where there is no room for it.
using SoImageFit = std::function<SoImageSize(const SoImageSize& size, int bytesPerPixel)>;

/// The same for a reader that knows a picture's size from its file's first bytes: it asks `fit` before it
/// takes memory for the pixels, and makes the picture as large as the answer says. Where that is empty, it
/// returns false.
using SoFittingImageReader = std::function<bool(const char* path, const SoImageFit& fit, SoSFImage& image)>;
