// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPath.h>

namespace scopix
{

/// Where the services find the scene that is open, and places in it. By default there is none.
class SceneSource
{
public:
    SceneSource() = default;
    SceneSource(const SceneSource&) = delete;
    SceneSource& operator=(const SceneSource&) = delete;
    virtual ~SceneSource() = default;

    virtual SoNode* sceneRoot() const { return nullptr; }
    virtual SoPath selectedPath() const { return {}; }
    /// To the first of the node's places; empty where it has none.
    virtual SoPath pathTo(const SoNode* /*node*/) const { return {}; }
};

} // namespace scopix
