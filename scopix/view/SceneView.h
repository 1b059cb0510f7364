// The live 3D view. Draws again only when the scene, the camera or the size changed. Left button turns, middle button
// (or Shift and the left one) moves, the wheel comes nearer to the pointer or goes away from it, a click picks, a
// double click or F shows all of what is selected, Home shows all. GUI thread only.
#pragma once

#include <xsg/actions/SoRayPickAction.h>
#include <xsg/nodes/SoPerspectiveCamera.h>
#include <xsg/sensors/SoNodeSensor.h>

#include <QPoint>
#include <QWidget>

class ViewSurface;
struct ViewContent;
class SoRenderer;

class SceneView : public QWidget
{
    Q_OBJECT

public:
    enum class Drawing { Best, Pictures };

    explicit SceneView(QWidget* parent = nullptr, Drawing drawing = Drawing::Best);
    ~SceneView() override;

    // Shows all of it. Null gives the empty ground.
    void setScene(SoNode* root);
    // Marks the node in the picture; null marks none. Only compared with, never looked into.
    void setHighlight(const SoNode* node);

    void viewAll();
    // Shows all of the node, or of everything where it has nothing to see.
    void viewNode(SoNode* node);

    // The view's own; not part of the scene.
    SoPerspectiveCamera& getCamera() { return *m_camera; }
    // What is at this place of the widget.
    std::optional<SoPickedPoint> pick(const QPoint& place);
    // Pictures drawn so far.
    int getDrawCount() const;

    QSize sizeHint() const override { return {720, 560}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

signals:
    // An empty path: the ground was clicked.
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

private:
    enum class Drag { None, Orbit, Pan };

    static void sceneChanged(void* self, SoSensor* sensor);
    ViewContent prepare(SoRenderer& renderer);
    void frame(const SbBox3f& box);
    void cameraMoved();
    float aspect() const;

    SoRef<SoNode> m_root;
    SoRef<SoPerspectiveCamera> m_camera;
    const SoNode* m_highlight = nullptr;
    SoNodeSensor m_sensor;
    SoRayPickAction m_pickAction;
    ViewSurface* m_surface;
    Drag m_drag = Drag::None;
    bool m_moved = false;    // since the press, by more than a click's trembling
    bool m_framed = false;   // the person has not moved since all was shown
    QPoint m_pressed;
    QPoint m_last;
};
