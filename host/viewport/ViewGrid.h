// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewTool.h"

#include <xsg/values/SbBox.h>

namespace scopix
{

class SceneView;

/// A grid on the ground, where y is 0, and the axes of the world, in the view and never part of the scene.
/// Its spacing fits the scene: ten squares along what is the next round number above its extent. GUI thread
/// only.
class ViewGrid : public ViewTool
{
public:
    /// The view must outlive it.
    explicit ViewGrid(SceneView& view);

    void setGrid(bool on);
    void setAxes(bool on);
    /// Between its lines.
    static float spacingFor(const SbBox3f& scene);

    void draw(SoOverlay& overlay, const ViewSight& sight) override;
    void extend(SbBox3f& seen) override;

private:
    SbBox3f getExtent(const SbBox3f& scene) const;

    SceneView& m_view;
    bool m_hasGrid = false;
    bool m_hasAxes = false;
    SbBox3f m_scene; // as of the last picture
};

} // namespace scopix
