// SPDX-License-Identifier: MIT
#include "window/ViewDisplay.h"

#include "structure/SceneStates.h"
#include "viewport/SceneView.h"

namespace scopix
{

QList<SoNode*> ViewDisplay::getHiddenNodes() const
{
    QList<SoNode*> hidden;
    for (SoNode* node : m_states.findHidden(m_view.getScene()))
        hidden.append(node);
    return hidden;
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
