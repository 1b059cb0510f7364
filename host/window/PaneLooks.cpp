// SPDX-License-Identifier: MIT
#include "window/PaneLooks.h"

#include "panels/ScenePanel.h"
#include "panels/SceneTreeView.h"
#include "viewport/SceneView.h"

namespace scopix
{

PaneLooks::PaneLooks(ScenePanel& panel, SceneView& view)
    : m_panel(panel)
    , m_view(view)
{
}

void PaneLooks::keep(const OpenScene& scene)
{
    m_looks[&scene] = {m_view.getPlace(), m_panel.getTree().expandedPaths()};
}

void PaneLooks::show(const OpenScene& scene, SoNode* root)
{
    const auto known = m_looks.extract(&scene);
    m_view.setShapeColors({});
    m_view.setOverdrawShown(false);
    m_panel.setScene(root);
    if (!known)
        return m_view.setScene(root);
    m_view.setScene(root, known.mapped().place);
    m_panel.getTree().expandPaths(known.mapped().expanded);
}

} // namespace scopix
