// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoState.h>
#include <xsg/render/ListInterner.h>
#include <xsg/render/TextureStore.h>

#include <map>

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
    const SoFog* fog = nullptr;
    const SoDrawStyle* drawStyle = nullptr;
    bool operator<(const DrawStateKey& other) const;
    bool operator==(const DrawStateKey& other) const { return !(*this < other) && !(other < *this); }
};

/// The draw states of a scene, each once, by number.
class DrawStateTable
{
public:
    /// The number of this state, with its texture in OpenGL's memory; a new one where it is not there yet.
    int find(const SoState& state, GpuTexture* texture);
    const DrawStateKey& get(int number) const { return *m_states[static_cast<std::size_t>(number)]; }
    std::size_t getSize() const { return m_states.size(); }
    void clear();

private:
    DrawStateKey keyOf(const SoState& state, GpuTexture* texture);

    std::map<DrawStateKey, int> m_numbers;
    std::vector<const DrawStateKey*> m_states;
    DrawStateKey m_last; // neighbours in a scene mostly have the same
    int m_lastNumber = -1;

    /// Equal lists become the same list, however often the scene is walked, so that keys compare pointers.
    ListInterner<SoLightSource> m_lights;
    ListInterner<SbPlane> m_clipPlanes;
    ListInterner<SbMatrix> m_textureMatrices;
};

} // namespace xsg
