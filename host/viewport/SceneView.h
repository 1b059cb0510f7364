// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/MouseScheme.h"
#include "viewport/PictureSeries.h"
#include "viewport/ViewCamera.h"
#include "viewport/ViewSight.h"
#include "viewport/ViewTools.h"

#include <xsg/actions/SoRayPickAction.h>
#include <xsg/render/SoRenderer.h>
#include <xsg/render/SoShapeColors.h>
#include <xsg/sensors/SoNodeSensor.h>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QList>
#include <QPoint>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class QLabel;

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
    /// From where it was looked at before.
    void setScene(SoNode* root, const ViewCamera::Place& place);
    ViewCamera::Place getPlace() const { return m_camera.getPlace(); }
    /// Marks the nodes in the picture, the last, which is the current one, stronger than the others. They may
    /// be destroyed at any time.
    void setHighlight(const QList<const SoNode*>& nodes);
    /// The node alone; null marks none.
    void setHighlight(const SoNode* node);

    /// What is hidden is not shown and not picked, and what is locked is not picked; it must outlive the
    /// view.
    void setStates(const SceneStates* states);

    /// Which buttons navigate; a click of the left one selects in each.
    void setMouseScheme(MouseScheme scheme) { m_mouseScheme = scheme; }
    MouseScheme getMouseScheme() const { return m_mouseScheme; }

    /// Edges instead of surfaces.
    void setWireframe(bool on);
    bool isWireframe() const { return m_wireframe; }
    /// What of the scene is shown; edges instead of surfaces go with each.
    void setShading(SoRenderer::Shading shading);
    SoRenderer::Shading getShading() const { return m_shading; }
    /// In place of the shapes' own looks, as of SoRenderer; empty for none.
    void setShapeColors(const SoShapeColors& colors);
    const SoShapeColors& getShapeColors() const { return m_shapeColors; }
    /// How often each pixel is drawn, in place of the shading that was chosen.
    void setOverdrawShown(bool on);
    bool isOverdrawShown() const { return m_showsOverdraw; }
    /// How the bright light of physically based surfaces is brought into the picture.
    void setToneMapping(SoRenderer::ToneMapping toneMapping);
    SoRenderer::ToneMapping getToneMapping() const { return m_toneMapping; }
    /// Cuts the scene by a plane in world coordinates, without changing it: what lies on the normal's side
    /// stays. Nothing: no plane. What is cut away is not picked either.
    void setClipPlane(const std::optional<SbPlane>& plane);
    const std::optional<SbPlane>& getClipPlane() const { return m_clipPlane; }
    /// Whether the log of frames gets those of this view; on at first.
    void setLogsFrames(bool on) { m_logsFrames = on; }
    /// In a corner of the picture, what it took to draw it.
    void setShowsStatistics(bool on);

    /// How a new scene is seen: through its own camera, or else everything. See ViewCamera.
    void goHome();
    void viewAll();
    /// As of ViewCamera.
    void lookFrom(const SbVec3f& side);
    void lookThrough(const SceneCamera& camera);
    void setParallel(bool on);
    bool isParallel() const { return m_camera.isParallel(); }
    void turn(float right, float up);
    void walk(float right, float up, float ahead);
    void look(float right, float up);
    /// How large the scene is.
    float getSceneSize() const { return m_camera.getSceneSize(); }
    /// Shows all of the node, or of everything where it has nothing to see.
    void viewNode(SoNode* node);

    /// The view's own, never part of the scene. Going home and a change of the scene may put another in its
    /// place.
    SoCamera& getCamera() { return m_camera.get(); }
    /// What is at this place of the widget.
    std::optional<SoPickedPoint> pick(const QPoint& place);
    /// All that is there, from front to back.
    std::vector<SoPickedPoint> pickAll(const QPoint& place);
    /// To the shapes that are seen within this part of the widget, wholly or in part.
    std::vector<SoPath> findSeen(const QRect& area);
    /// The pixels that this part of the scene covers, row by row from the bottom, as if nothing hid it: for a
    /// picture of this size of the whole view, not 0.
    std::vector<std::uint32_t> findCovered(const SoPath& part, const QSize& size);
    SoNode* getScene() const { return m_root.get(); }
    /// For pictures of this size of what is seen, without marks and tools; `forTurn`: from all around. It is
    /// of use as long as the view lives.
    PictureSubject getPictureSubject(const QSize& size, bool forTurn);
    /// What the last picture took, in seconds.
    double getDrawSeconds() const { return m_drawSeconds; }
    /// Pictures drawn so far.
    int getDrawCount() const;
    /// Whether the picture of a large scene is being drawn, between the user's events.
    bool isDrawing() const;
    /// Whether the scene may be animated, as it is by default; without that a picture is the same whenever it
    /// is taken.
    void setAnimated(bool on);
    bool isAnimated() const { return m_isAnimated; }
    /// Whether the scene is being animated.
    bool isAnimating() const { return m_ticks.isActive(); }

    /// Offers it all events before the view navigates. It must outlive the view, or be removed.
    void addTool(ViewTool* tool);
    void removeTool(ViewTool* tool);
    /// Asked before a click selects what it hit; true leaves the selection as it is.
    using PickFilter = std::function<bool(const SoPickedPoint& hit, const QPoint& place)>;
    void setPickFilter(PickFilter filter) { m_pickFilter = std::move(filter); }
    /// How the view sees at present.
    ViewSight getSight() const;
    /// The picture is no longer right: draws another one, and what the tools have over it.
    void redraw();
    /// What the tools paint over the picture is no longer right; the picture itself stays.
    void repaintTools() { m_tools.repaint(); }
    /// As if the key had been pressed in the view: for the keys that act from elsewhere too. False where
    /// nobody has a use for it.
    bool offerKey(QKeyEvent& event) { return m_tools.keyPress(event); }

    QSize sizeHint() const override { return {720, 560}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

signals:
    /// An empty path: the ground was clicked.
    void picked(const SoPath& path);
    void viewSelectedRequested();
    /// Everything is seen in its size from now on, or smaller the farther it is.
    void parallelChanged(bool on);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    static void sceneChanged(void* self, SoSensor* sensor);
    void sceneSet(SoNode* root);
    ViewContent prepare(SoRenderer& renderer);
    void setUp(SoRenderer& renderer) const;
    SbRay rayAt(const QPoint& place) const;
    template <class Action>
    void cut(Action& action) const;
    void drawn(const SoRenderer& renderer);
    void pan(float right, float up);
    void zoom(float factor);
    void animateWhereNeeded();

    SoRef<SoNode> m_root;
    ViewCamera m_camera;
    bool m_wasParallel = false;
    std::vector<std::uint64_t> m_highlight; // nodes' numbers: a node may go while it is marked
    SoNodeSensor m_sensor;
    SoRayPickAction m_pickAction;
    PickFilter m_pickFilter;
    SoRenderer::Shading m_shading = SoRenderer::Shading::Full;
    SoShapeColors m_shapeColors;
    bool m_showsOverdraw = false;
    SoRenderer::ToneMapping m_toneMapping = SoRenderer::ToneMapping::Neutral;
    std::optional<SbPlane> m_clipPlane;
    double m_drawSeconds = 0;
    const SceneStates* m_states = nullptr;
    ViewSurface* m_surface;
    ViewTools m_tools;
    QLabel* m_statistics;
    bool m_statisticsAreOld = true;
    bool m_logsFrames = true;
    bool m_wireframe = false;
    bool m_isAnimated = true;
    QBasicTimer m_ticks; // runs while something turns
    QElapsedTimer m_sinceTick;
    MouseScheme m_mouseScheme = MouseScheme::Scopix;
    MouseDrag m_drag = MouseDrag::None;
    bool m_mayClick = false; // the press that may become one
    bool m_moved = false;    // since the press, by more than a click's trembling
    QPoint m_pressed;
    QPoint m_last;
};

} // namespace scopix
