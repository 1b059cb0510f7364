// SPDX-License-Identifier: MIT
// Nodes for the physically based materials of a model.
#pragma once

#include "model/ModelData.h"

#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/properties/SoTexture2.h>

#include <map>
#include <tuple>

class SoGroup;

namespace scopix
{

/// Makes each node once. The model has to stay; the bytes of its pictures move into the nodes.
class PhysicalMaterials
{
public:
    explicit PhysicalMaterials(ModelData& model);

    /// Whether any material is physically based, and needs surroundings to be seen in.
    bool areAny() const { return m_areAny; }
    /// Adds the node of this material, which is shared, or one of its own for points with colours of their
    /// own, and its pictures where the mesh has coordinates for them.
    void addTo(SoGroup& group, int material, ModelData::Mesh& mesh);
    /// The light that shows them. Where the file has lights of its own, it fills up their shadows only.
    static SoNode* makeSurroundings(bool hasLights);

private:
    /// All that a picture's node has.
    using Key = std::tuple<int, int, int, int, int, float, float, float, float, float>;
    static Key keyOf(const ModelData::SurfacePicture& picture);

    SoPhysicalMaterial* make(const ModelData::Material& material) const;
    void addPictures(SoGroup& group, const ModelData::Material& material, const ModelData::Mesh& mesh);
    SoTexture2* pictureNode(const ModelData::SurfacePicture& picture);

    ModelData& m_model;
    bool m_areAny = false;
    std::vector<SoRef<SoPhysicalMaterial>> m_materials;
    std::map<Key, SoRef<SoTexture2>> m_pictures; // null: not made yet
    std::vector<int> m_wanted;                   // for each picture: how many nodes still need its bytes
};

} // namespace scopix
