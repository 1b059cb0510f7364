// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewCamera.h"

#include <xsg/actions/SoPath.h>

#include <map>
#include <vector>

class SoNode;

namespace scopix
{

class OpenScene;
class ScenePanel;
class SceneView;

/// How the scenes that are not in front were looked at in one window: from where, and what was unfolded in
/// its tree. GUI thread only.
class PaneLooks
{
public:
    /// Both must outlive it.
    PaneLooks(ScenePanel& panel, SceneView& view);

    /// It is about to leave the front.
    void keep(const OpenScene& scene);
    void drop(const OpenScene& scene) { m_looks.erase(&scene); }
    /// As it was kept, or else as a new one.
    void show(const OpenScene& scene, SoNode* root);

private:
    struct Look {
        ViewCamera::Place place;
        std::vector<SoPath> expanded;
    };

    ScenePanel& m_panel;
    SceneView& m_view;
    std::map<const OpenScene*, Look> m_looks;
};

} // namespace scopix
