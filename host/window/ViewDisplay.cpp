// SPDX-License-Identifier: MIT
#include "window/ViewDisplay.h"

#include "structure/SceneStates.h"
#include "viewport/SceneView.h"

namespace scopix
{

QList<SoNode*> ViewDisplay::getHiddenNodes() const
{
    const std::vector<SoNode*> found = m_states.findHidden(m_view.getScene());
    return {found.begin(), found.end()};
}

QList<SoNode*> ViewDisplay::getIsolatedNodes() const
{
    const std::vector<SoNode*> found = m_states.findIsolated(m_view.getScene());
    return {found.begin(), found.end()};
}

void ViewDisplay::setHidden(SoNode* node, bool hidden)
{
    m_states.setHidden({node}, hidden);
}

void ViewDisplay::setShapeColors(const SoShapeColors& colors)
{
    m_view.setShapeColors(colors);
}

void ViewDisplay::setOverdrawShown(bool on)
{
    m_view.setOverdrawShown(on);
}

} // namespace scopix
