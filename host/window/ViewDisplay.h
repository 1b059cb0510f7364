// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxSceneDisplay.h>

namespace scopix
{

class SceneStates;
class SceneView;

/// What extensions set of how the scene is shown, over the view and what is hidden in it, which must outlive
/// it. GUI thread only.
class ViewDisplay : public SpxSceneDisplay
{
public:
    ViewDisplay(SceneView& view, SceneStates& states)
        : m_view(view)
        , m_states(states)
    {
    }

    QList<SoNode*> getHiddenNodes() const override;
    void setHidden(SoNode* node, bool hidden) override;
    void setShapeColors(const SoShapeColors& colors) override;
    void setOverdrawShown(bool on) override;
    QList<SoNode*> getIsolatedNodes() const override;

private:
    SceneView& m_view;
    SceneStates& m_states;
};

} // namespace scopix
