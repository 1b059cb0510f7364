// SPDX-License-Identifier: MIT
#include "export/MaterialTable.h"

#include "export/ExportNames.h"

namespace scopix
{

std::size_t MaterialTable::placeOf(const SoState& state)
{
    const SoMaterialState& look = state.material;
    const auto numbers = [](const SbColor& c) { return Color{c[0], c[1], c[2]}; };
    const Key key{numbers(look.ambient),  numbers(look.diffuse), numbers(look.specular),
                  numbers(look.emissive), look.shininess,        look.transparency,
                  state.texture};
    const auto [place, isNew] = m_places.emplace(key, m_all.size());
    if (isNew)
        m_all.push_back({newName(), look, state.texture});
    return place->second;
}

// A material without one is named by its place.
std::string MaterialTable::newName()
{
    std::string name = m_node ? exportedName(*m_node) : std::string();
    for (char& c : name)
        c = c <= ' ' && c >= 0 ? '_' : c;
    const std::string number = std::to_string(m_all.size() + 1);
    if (name.empty() || !m_names.insert(name).second)
        name = (name.empty() ? "material" : name) + '_' + number;
    m_names.insert(name);
    return name;
}

} // namespace scopix
