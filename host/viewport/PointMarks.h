// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewTool.h"

#include <xsg/actions/SoPathTraversal.h>
#include <xsg/sensors/SoNodeSensor.h>

#include <map>

namespace scopix
{

class SceneView;

/// Points that are marked in the 3D view, of one size on the screen: strong where they are seen, faint where
/// something covers them. They follow the transforms of the place that they belong to, and keep no node
/// alive. GUI thread only.
class PointMarks : public ViewTool
{
public:
    /// More points than this of one owner are not marked: the picture would be nothing but marks.
    static constexpr std::size_t Most = 20'000;

    /// The view must outlive this.
    explicit PointMarks(SceneView& view);
    ~PointMarks() override;

    /// Drops all marks.
    void setScene(SoNode* root);
    /// In the coordinates at the end of the path; takes the place of the owner's earlier ones.
    void set(const void* owner, const SoPath& place, std::vector<SbVec3f> points);
    /// Those that another view of the same scene has.
    void take(const PointMarks& other);
    /// How many points are marked in the picture.
    std::size_t count();

    void draw(SoOverlay& overlay, const ViewSight& sight) override;

private:
    struct Marks {
        SoPathTraversal::NodeIds place;
        std::vector<SbVec3f> points;
        std::vector<SbVec3f> world; // as of the last look at the scene
    };
    static void sensorTriggered(void* self, SoSensor* sensor);
    void place();
    void changed();
    void drawPoint(SoOverlay& overlay, const SbVec3f& point) const;

    SceneView& m_view;
    SoRef<SoNode> m_root;
    SoNodeSensor m_sensor;
    std::map<const void*, Marks> m_marks; // by owner
    bool m_isOld = false;
};

} // namespace scopix
