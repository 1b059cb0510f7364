// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/types/SoType.h>
#include <xsg/values/SbName.h>

#include <vector>

class SoFieldContainer;
class SoNode;

namespace scopix
{

class HostServices;

/// What is selected in a scene, to select the same in a scene that takes its place: the node of the same name
/// and type, or else the one in the same place with the same types above it. Holds on to no node. GUI thread
/// only.
class SelectionMemo
{
public:
    SelectionMemo() = default; // of nothing
    SelectionMemo(const HostServices& services, SoNode* root);

    /// Selects nothing where the scene has no such node.
    void restore(HostServices& services, SoNode* root) const;

private:
    struct Step {
        int index; // among the children of the node before
        SoType type;
    };
    SoNode* find(SoNode* root) const;
    SoNode* findByName(SoNode* root) const;

    std::vector<Step> m_steps; // from the root; empty where no node is selected
    SbName m_name;             // of the node, where it has one
    SbName m_field;
};

} // namespace scopix
