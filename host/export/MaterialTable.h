// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoState.h>

#include <array>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

class SoNode;
class SoShape;

namespace scopix
{

struct ExportedMaterial {
    std::string name; // UTF-8; of its own, without blanks
    SoMaterialState look;
    const SoTexture2* texture = nullptr;
    /// Null for a material of the other kind. `look` is then what other formats have of it.
    const SoPhysicalMaterial* physical = nullptr;
    std::vector<const SoMaterialTexture*> textures; // by use, null for none; empty for none at all
    bool isColored = false;                         // points or faces have colours of their own
};

/// The materials that shapes of a scene have, each once. Refers to nodes of the scene, which must outlive it.
class MaterialTable
{
public:
    /// The node that names what comes next.
    void noteNode(const SoNode& material) { m_node = &material; }
    /// The place of what the state says among all().
    std::size_t placeOf(const SoState& state, const SoShape& shape);
    std::vector<ExportedMaterial> take() { return std::move(m_all); }

private:
    std::string newName();
    const SoPhysicalMaterial* firstLike(const SoPhysicalMaterial* material, bool isColored);

    using Color = std::array<float, 3>;
    using Key = std::tuple<Color, Color, Color, Color, float, float, const SoTexture2*,
                           const SoPhysicalMaterial*, std::vector<const SoMaterialTexture*>, bool>;

    std::vector<ExportedMaterial> m_all;
    std::map<Key, std::size_t> m_places;
    std::map<std::pair<const SoPhysicalMaterial*, bool>, const SoPhysicalMaterial*> m_firstLike;
    std::map<std::string, const SoPhysicalMaterial*> m_firstOfValues;
    std::set<std::string> m_names;
    const SoNode* m_node = nullptr;
};

} // namespace scopix
