// SPDX-License-Identifier: MIT
#include <xsg/render/DrawStateTable.h>

#include <xsg/nodes/properties/SoTexture2.h>

#include <tuple>

namespace
{

auto ordered(const xsg::DrawStateKey& s)
{
    const SbColor& a = s.ambientLight;
    return std::make_tuple(s.features, s.pictures.get(), s.environment.get(), s.texture, s.textureModel,
                           s.lights.get(), s.clipPlanes.get(), s.textureMatrix.get(), s.fog, s.drawStyle,
                           a[0], a[1], a[2]);
}

template <class Act>
void forEachTexture(const xsg::DrawStateKey& key, const Act& act)
{
    if (key.texture)
        act(*key.texture);
    if (!key.pictures)
        return;
    for (const xsg::SurfacePicture& picture : *key.pictures)
        act(*picture.texture);
}

} // namespace

bool xsg::DrawStateKey::operator<(const DrawStateKey& other) const
{
    return ordered(*this) < ordered(other);
}

xsg::DrawStateKey xsg::DrawStateTable::keyOf(const SoState& state, GpuTexture* texture,
                                             const Surface& surface)
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
    key.features = surface.features;
    key.pictures = m_pictures.get(surface.pictures);
    if ((surface.features & EnvironmentLit) != 0)
        key.environment = m_environments.get(state.environment);
    key.fog = state.fog;
    key.drawStyle = state.drawStyle;
    return key;
}

int xsg::DrawStateTable::use(const SoState& state, GpuTexture* texture, const Surface& surface)
{
    DrawStateKey now = keyOf(state, texture, surface);
    if (m_lastNumber < 0 || !(now == m_last)) {
        m_lastNumber = numberOf(now);
        m_last = std::move(now);
    }
    ++m_states[static_cast<std::size_t>(m_lastNumber)].users;
    return m_lastNumber;
}

int xsg::DrawStateTable::numberOf(const DrawStateKey& key)
{
    const auto known = m_numbers.find(key);
    if (known != m_numbers.end())
        return known->second;
    auto number = static_cast<int>(m_states.size());
    if (m_free.empty()) {
        m_states.push_back({});
    } else {
        number = m_free.back();
        m_free.pop_back();
    }
    m_states[static_cast<std::size_t>(number)] = {&m_numbers.emplace(key, number).first->first, 0};
    forEachTexture(key, [](GpuTexture& texture) { ++texture.users; });
    return number;
}

void xsg::DrawStateTable::release(int number)
{
    Entry& entry = m_states[static_cast<std::size_t>(number)];
    if (--entry.users > 0)
        return;
    forEachTexture(*entry.key, [this](GpuTexture& texture) {
        if (--texture.users == 0)
            m_unusedTextures.push_back(&texture);
    });
    m_numbers.erase(m_numbers.find(*entry.key));
    entry = {};
    m_free.push_back(number);
    if (m_lastNumber == number) {
        m_last = {};
        m_lastNumber = -1;
    }
}

void xsg::DrawStateTable::clear()
{
    m_numbers.clear();
    m_states.clear();
    m_free.clear();
    m_unusedTextures.clear();
    m_last = {};
    m_lastNumber = -1;
    m_lights.clear();
    m_clipPlanes.clear();
    m_textureMatrices.clear();
    m_pictures.clear();
    m_environments.clear();
}
