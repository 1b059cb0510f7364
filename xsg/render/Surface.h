// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoState.h>
#include <xsg/nodes/properties/SoMaterialTexture.h>
#include <xsg/render/TextureStore.h>

#include <algorithm>

namespace xsg
{

/// What the drawing program of a surface has to do, as bits; 0 for surfaces that are not physically based. A
/// program does nothing else, so that what a surface does not have costs nothing.
using SurfaceFeatures = unsigned;
constexpr SurfaceFeatures PhysicalSurface = 1;
constexpr SurfaceFeatures MaskedSurface = 2;
constexpr SurfaceFeatures BlendedSurface = 4;
constexpr SurfaceFeatures CoatedSurface = 8;
constexpr SurfaceFeatures SecondCoordinates = 16;
constexpr SurfaceFeatures EnvironmentLit = 32;
/// The picture of this use.
constexpr SurfaceFeatures pictureFeature(int use)
{
    return 64U << static_cast<unsigned>(use);
}
constexpr SurfaceFeatures NormalPictures =
    pictureFeature(SoMaterialTexture::Normal) | pictureFeature(SoMaterialTexture::ClearCoatNormal);

/// A picture on a physically based surface.
struct SurfacePicture {
    GpuTexture* texture = nullptr;
    int use = 0;
    int coordinates = 0;
    float matrix[6] = {1, 0, 0, 1, 0, 0}; // columns of two: what the coordinates are multiplied with
    friend bool operator==(const SurfacePicture& a, const SurfacePicture& b)
    {
        return a.texture == b.texture && a.use == b.use && a.coordinates == b.coordinates &&
               std::equal(a.matrix, a.matrix + 6, b.matrix);
    }
};

static_assert(sizeof(SurfacePicture) == sizeof(GpuTexture*) + 2 * sizeof(int) + 6 * sizeof(float),
              "without padding, so that it can be compared by its bytes");

/// The physically based surface of something that is drawn.
struct Surface {
    SurfaceFeatures features = 0;
    SoShared<SurfacePicture> pictures; // null for none
};

/// What the state says, its pictures in OpenGL's memory. Without a physical material it is empty.
Surface makeSurface(const SoState& state, TextureStore& textures);

} // namespace xsg
