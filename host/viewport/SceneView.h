// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewCamera.h"

#include <xsg/actions/SoRayPickAction.h>
#include <xsg/sensors/SoNodeSensor.h>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QList>
#include <QPoint>
#include <QWidget>

#include <cstdint>
#include <vector>

class QLabel;
class SoRenderer;

namespace scopix
{

class SceneStates;
class ViewSurface;
struct ViewContent;

/// The live 3D view. Draws again only when the scene, the camera or the size changed, and continuously only
/// while something in the scene is animated. The left button turns, the middle button (or Shift and the left
/// one) moves, the wheel zooms at the pointer, a click picks, a double click or F shows all of what is
/// selected, A shows all, Home restores the initial view. Arrow keys turn, with Shift they move, plus and
/// minus zoom. GUI thread only.
class SceneView : public QWidget
{
    Q_OBJECT

public:
    enum class Drawing { Best, Pictures };

    explicit SceneView(QWidget* parent = nullptr, Drawing drawing = Drawing::Best);
    ~SceneView() override;

    /// Goes home in it. Null gives the empty ground.
    void setScene(SoNode* root);
    /// Marks the nodes in the picture, the last, which is the current one, stronger than the others. They may
    /// be destroyed at any time.
    void setHighlight(const QList<const SoNode*>& nodes);
    /// The node alone; null marks none.
    void setHighlight(const SoNode* node);

    /// What is hidden is not shown and not picked, and what is locked is not picked; it must outlive the
    /// view.
    void setStates(const SceneStates* states);

    /// Edges instead of surfaces.
    void setWireframe(bool on);
    bool isWireframe() const { return m_wireframe; }
    /// In a corner of the picture, what it took to draw it.
    void setShowsStatistics(bool on);

    /// How a new scene is seen: through its own camera, or else everything. See ViewCamera.
    void goHome();
    void viewAll();
    /// Shows all of the node, or of everything where it has nothing to see.
    void viewNode(SoNode* node);

    /// The view's own, never part of the scene. Going home and a change of the scene may put another in its
    /// place.
    SoCamera& getCamera() { return m_camera.get(); }
    /// What is at this place of the widget.
    std::optional<SoPickedPoint> pick(const QPoint& place);
    /// Pictures drawn so far.
    int getDrawCount() const;
    /// Whether the scene may be animated, as it is by default; without that a picture is the same whenever it
    /// is taken.
    void setAnimated(bool on);
    /// Whether the scene is being animated.
    bool isAnimating() const { return m_ticks.isActive(); }

    QSize sizeHint() const override { return {720, 560}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

signals:
    /// An empty path: the ground was clicked.
    void picked(const SoPath& path);
    void viewSelectedRequested();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    enum class Drag { None, Orbit, Pan };

    static void sceneChanged(void* self, SoSensor* sensor);
    ViewContent prepare(SoRenderer& renderer);
    void drawn(const SoRenderer& renderer);
    void redraw();
    void turn(float right, float up);
    void pan(float right, float up);
    void zoom(float factor);
    void animateWhereNeeded();

    SoRef<SoNode> m_root;
    ViewCamera m_camera;
    std::vector<std::uint64_t> m_highlight; // nodes' numbers: a node may go while it is marked
    SoNodeSensor m_sensor;
    SoRayPickAction m_pickAction;
    const SceneStates* m_states = nullptr;
    ViewSurface* m_surface;
    QLabel* m_statistics;
    bool m_statisticsAreOld = true;
    bool m_wireframe = false;
    bool m_isAnimated = true;
    QBasicTimer m_ticks; // runs while something turns
    QElapsedTimer m_sinceTick;
    Drag m_drag = Drag::None;
    bool m_moved = false; // since the press, by more than a click's trembling
    QPoint m_pressed;
    QPoint m_last;
};

} // namespace scopix
