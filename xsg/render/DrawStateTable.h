// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoState.h>
#include <xsg/render/ListInterner.h>
#include <xsg/render/Surface.h>

#include <map>
#include <utility>

namespace xsg
{

/// What drawn things have in common; switching from one to the next is what costs.
struct DrawStateKey {
    SoShared<SoLightSource> lights;
    SoShared<SbPlane> clipPlanes;
    SoShared<SbMatrix> textureMatrix;
    SbColor ambientLight;
    GpuTexture* texture = nullptr;
    int textureModel = -1;
    SurfaceFeatures features = 0; // of a physically based surface, whose texture is among its pictures
    SoShared<SurfacePicture> pictures;
    SoShared<SoEnvironment> environment; // null unless such a surface shows it
    const SoFog* fog = nullptr;
    const SoDrawStyle* drawStyle = nullptr;
    bool operator<(const DrawStateKey& other) const;
    bool operator==(const DrawStateKey& other) const { return !(*this < other) && !(other < *this); }
};

/// The draw states of a scene, each once, by number.
class DrawStateTable
{
public:
    /// The number of this state, with its texture in OpenGL's memory, with one user more; a new one where it
    /// is not there yet.
    int use(const SoState& state, GpuTexture* texture, const Surface& surface = {});
    /// One user less. Without any, the number is given to another state, and the texture is one user less.
    void release(int number);
    /// Textures that have lost a user and have no other.
    std::vector<GpuTexture*> takeUnusedTextures() { return std::exchange(m_unusedTextures, {}); }
    const DrawStateKey& get(int number) const { return *m_states[static_cast<std::size_t>(number)].key; }
    /// Of those that have users.
    std::size_t getSize() const { return m_numbers.size(); }
    void clear();

private:
    DrawStateKey keyOf(const SoState& state, GpuTexture* texture, const Surface& surface);
    int numberOf(const DrawStateKey& key);

    std::map<DrawStateKey, int> m_numbers;
    struct Entry {
        const DrawStateKey* key = nullptr;
        std::int64_t users = 0;
    };
    std::vector<Entry> m_states;
    std::vector<int> m_free; // numbers
    std::vector<GpuTexture*> m_unusedTextures;
    DrawStateKey m_last; // neighbours in a scene mostly have the same
    int m_lastNumber = -1;

    /// Equal lists become the same list, however often the scene is walked, so that keys compare pointers.
    ListInterner<SoLightSource> m_lights;
    ListInterner<SbPlane> m_clipPlanes;
    ListInterner<SbMatrix> m_textureMatrices;
    ListInterner<SurfacePicture> m_pictures;
    ListInterner<SoEnvironment> m_environments;
};

} // namespace xsg
