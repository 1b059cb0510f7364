// SPDX-License-Identifier: MIT
#include <xsg/render/DrawStateTable.h>

#include <xsg/nodes/properties/SoTexture2.h>

#include <tuple>

namespace
{

auto ordered(const xsg::DrawStateKey& s)
{
    const SbColor& a = s.ambientLight;
    return std::make_tuple(s.texture, s.textureModel, s.lights.get(), s.clipPlanes.get(),
                           s.textureMatrix.get(), s.fog, s.drawStyle, a[0], a[1], a[2]);
}

} // namespace

bool xsg::DrawStateKey::operator<(const DrawStateKey& other) const
{
    return ordered(*this) < ordered(other);
}

xsg::DrawStateKey xsg::DrawStateTable::keyOf(const SoState& state, GpuTexture* texture)
{
    DrawStateKey key;
    key.lights = m_lights.get(state.lights);
    key.clipPlanes = m_clipPlanes.get(state.clipPlanes);
    key.ambientLight = state.ambientLight;
    key.texture = texture;
    if (texture) {
        key.textureModel = state.texture->model.getValue();
        key.textureMatrix = m_textureMatrices.get(state.textureMatrix);
    }
    key.fog = state.fog;
    key.drawStyle = state.drawStyle;
    return key;
}

int xsg::DrawStateTable::find(const SoState& state, GpuTexture* texture)
{
    DrawStateKey now = keyOf(state, texture);
    if (m_lastNumber >= 0 && now == m_last)
        return m_lastNumber;
    const auto [place, isNew] = m_numbers.emplace(now, static_cast<int>(m_states.size()));
    if (isNew)
        m_states.push_back(&place->first);
    m_last = std::move(now);
    return m_lastNumber = place->second;
}

void xsg::DrawStateTable::clear()
{
    m_numbers.clear();
    m_states.clear();
    m_last = {};
    m_lastNumber = -1;
    m_lights.clear();
    m_clipPlanes.clear();
    m_textureMatrices.clear();
}
