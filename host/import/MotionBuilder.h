// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelData.h"

#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/transforms/SoTransformation.h>

#include <vector>

namespace scopix
{

/// Makes the nodes of a model that move it, while the others are made: the transforms of its nodes, what
/// bends its meshes, and at last the clips. Takes the lists of the model's motion over.
class MotionBuilder
{
public:
    explicit MotionBuilder(ModelData& model);

    /// The transform of a node, to be added before all else in it; null where it needs none.
    SoTransformation* makeTransform(int node);
    /// Whether a clip moves the node, or a skin has it for a bone.
    bool isMover(int node) const;
    /// Whether the mesh looks another way in each node that it stands in.
    bool isSkinned(int mesh) const { return m_skinOf[static_cast<std::size_t>(mesh)] >= 0; }
    /// What bends the points of a mesh as it stands in this node, to be added before its shape; once for
    /// each.
    void bend(SoSeparator& group, int mesh, int node);
    /// After all nodes have been made: completes the skins and adds the clips.
    void finish(SoSeparator& scene);

private:
    struct Bent {
        SoRef<SoSkin> node;
        int skin;
        int place; // the node that the mesh stands in
    };

    void findParents();
    void findMoved();
    void findBones();
    std::vector<int> skeletonOf(const Bent& bent) const;
    void complete(const Bent& bent);
    void addClip(SoSeparator& scene, ModelMotion::Clip& clip);
    std::vector<SoRef<SoNode>> targetsOf(const ModelMotion::Track& track) const;

    ModelData& m_model;
    std::vector<int> m_parents;
    std::vector<bool> m_isMoved;
    std::vector<bool> m_isBone;
    std::vector<SoRef<SoTransformation>> m_transforms;
    std::vector<int> m_skinOf;            // by mesh, or -1
    std::vector<int> m_morphOf;           // the same
    std::vector<SoRef<SoMorph>> m_morphs; // by mesh
    std::vector<Bent> m_bent;
};

} // namespace scopix
