// SPDX-License-Identifier: MIT
#include "viewport/SceneView.h"

#include "structure/SceneStates.h"
#include "theme/Theme.h"
#include "viewport/ViewSurface.h"

#include <xsg/actions/SoAreaPickAction.h>
#include <xsg/frames/SoFrameLog.h>
#include <xsg/nodes/base/SoTimeSource.h>

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QResizeEvent>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr float WheelStep = 0.85F;    // per notch of 120
constexpr float ZoomPerHeight = 0.2F; // of a drag as long as the view is high
constexpr int TickMs = 16;            // between pictures of something that moves with time
// What a key does, as part of the picture's height; turning, that is half a turn.
constexpr float KeyStep = 1.0F / 12;
// Of the line around what is selected, in pixels of the screen at a density of 1.
constexpr float LineThickness = 2;

} // namespace

SceneView::SceneView(QWidget* parent, Drawing drawing)
    : QWidget(parent)
    , m_sensor(sceneChanged, this)
    , m_surface(ViewSurface::make(
          this, [this](SoRenderer& renderer) { return prepare(renderer); },
          [this](const SoRenderer& renderer) { drawn(renderer); }, drawing == Drawing::Best))
    , m_tools(*this, [this] { return getSight(); })
    , m_statistics(new QLabel(this))
{
    m_statistics->setObjectName(QStringLiteral("statistics"));
    m_statistics->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_statistics->setAutoFillBackground(true);
    m_statistics->setMargin(4);
    m_statistics->hide();
    setObjectName(QStringLiteral("sceneView"));
    setFocusPolicy(Qt::StrongFocus);
}

SceneView::~SceneView() = default;

void SceneView::setScene(SoNode* root)
{
    m_camera.setScene(root);
    sceneSet(root);
}

void SceneView::setScene(SoNode* root, const ViewCamera::Place& place)
{
    m_camera.setScene(root, place);
    sceneSet(root);
}

void SceneView::sceneSet(SoNode* root)
{
    m_root = SoRef<SoNode>(root);
    m_highlight.clear();
    m_sensor.attach(root);
    m_tools.sceneChanged();
    redraw();
    animateWhereNeeded();
}

void SceneView::goHome()
{
    m_camera.goHome();
    redraw();
}

void SceneView::redraw()
{
    if (std::exchange(m_wasParallel, m_camera.isParallel()) != m_camera.isParallel())
        emit parallelChanged(m_camera.isParallel());
    m_statisticsAreOld = true;
    m_surface->redraw();
    m_tools.repaint();
}

void SceneView::addTool(ViewTool* tool)
{
    m_tools.add(tool);
    m_statistics->raise();
    redraw();
}

void SceneView::removeTool(ViewTool* tool)
{
    m_tools.remove(tool);
    redraw();
}

ViewSight SceneView::getSight() const
{
    return {m_camera.get(), QSizeF(size())};
}

void SceneView::setStates(const SceneStates* states)
{
    m_states = states;
    connect(states, &SceneStates::changed, this, &SceneView::redraw);
}

void SceneView::setWireframe(bool on)
{
    m_wireframe = on;
    redraw();
}

void SceneView::setShading(SoRenderer::Shading shading)
{
    m_shading = shading;
    redraw();
}

void SceneView::setShapeColors(const SoShapeColors& colors)
{
    if (colors.isEmpty() && m_shapeColors.isEmpty())
        return;
    m_shapeColors = colors;
    redraw();
}

void SceneView::setOverdrawShown(bool on)
{
    if (std::exchange(m_showsOverdraw, on) != on)
        redraw();
}

void SceneView::setToneMapping(SoRenderer::ToneMapping toneMapping)
{
    m_toneMapping = toneMapping;
    redraw();
}

void SceneView::setClipPlane(const std::optional<SbPlane>& plane)
{
    m_clipPlane = plane;
    redraw();
}

void SceneView::setShowsStatistics(bool on)
{
    m_statistics->setVisible(on);
    redraw();
}

// Only after a picture that was asked for: the text itself may have the picture painted again.
void SceneView::drawn(const SoRenderer& renderer)
{
    m_drawSeconds = renderer.getStatistics().seconds;
    if (!std::exchange(m_statisticsAreOld, false) || m_statistics->isHidden())
        return;
    const SoRenderer::Statistics& frame = renderer.getStatistics();
    m_statistics->setText(tr("Shapes: %L1, of them out of sight: %L2\n"
                             "Triangles: %L3, draw calls: %L4\n"
                             "Uploaded bytes: %L5, processor: %L6 ms")
                              .arg(frame.shapes)
                              .arg(frame.culled)
                              .arg(frame.triangles)
                              .arg(frame.drawCalls)
                              .arg(frame.uploadedBytes + frame.textureBytes)
                              .arg(frame.seconds * 1000, 0, 'f', 1));
    m_statistics->adjustSize();
}

void SceneView::setAnimated(bool on)
{
    m_isAnimated = on;
    animateWhereNeeded();
}

void SceneView::animateWhereNeeded()
{
    const bool isNeeded =
        m_isAnimated && isVisible() && m_root && SoTimeSource::getInstance().isNeeded(m_root.get());
    if (isNeeded && !m_ticks.isActive()) {
        m_sinceTick.start();
        m_ticks.start(TickMs, this);
    } else if (!isNeeded) {
        m_ticks.stop();
    }
}

void SceneView::timerEvent(QTimerEvent* /*event*/)
{
    SoTimeSource::getInstance().advance(static_cast<double>(m_sinceTick.restart()) / 1000, m_root.get());
}

void SceneView::showEvent(QShowEvent* /*event*/)
{
    animateWhereNeeded();
}

void SceneView::hideEvent(QHideEvent* /*event*/)
{
    animateWhereNeeded();
}

void SceneView::setHighlight(const SoNode* node)
{
    setHighlight(node ? QList<const SoNode*>{node} : QList<const SoNode*>());
}

void SceneView::setHighlight(const QList<const SoNode*>& nodes)
{
    std::vector<std::uint64_t> numbers;
    for (const SoNode* node : nodes)
        numbers.push_back(node->getNodeId());
    if (numbers == m_highlight)
        return;
    m_highlight.swap(numbers);
    redraw();
}

void SceneView::sceneChanged(void* self, SoSensor* /*sensor*/)
{
    auto* view = static_cast<SceneView*>(self);
    view->m_camera.follow();
    view->m_tools.sceneChanged();
    view->redraw();
    view->animateWhereNeeded();
}

ViewContent SceneView::prepare(SoRenderer& renderer)
{
    m_camera.fitDepth([this](SbBox3f& seen) { m_tools.extend(seen); });
    const auto toColor = [](const QColor& c) {
        return SbColor(static_cast<float>(c.redF()), static_cast<float>(c.greenF()),
                       static_cast<float>(c.blueF()));
    };
    renderer.setBackground(toColor(groundColor(palette())));
    setUp(renderer);
    renderer.setFrameLog(m_logsFrames ? &SoFrameLog::getInstance() : nullptr);
    renderer.setHighlightedNumbers(m_highlight);
    renderer.setHighlightColor(toColor(palette().color(QPalette::Highlight)));
    renderer.setHighlightThickness(LineThickness * static_cast<float>(devicePixelRatioF()));
    renderer.getOverlay().clear();
    m_tools.draw(renderer.getOverlay());
    return {m_root.get(), &m_camera.get()};
}

// How the scene is shown, here and in pictures of it.
void SceneView::setUp(SoRenderer& renderer) const
{
    renderer.setWireframe(m_wireframe);
    renderer.setShading(m_showsOverdraw ? SoRenderer::Shading::Overdraw : m_shading);
    renderer.setShapeColors(&m_shapeColors);
    renderer.setToneMapping(m_toneMapping);
    renderer.setClipPlane(m_clipPlane ? &*m_clipPlane : nullptr);
    renderer.setHiding(m_states ? &m_states->getHiding() : nullptr);
}

PictureSubject SceneView::getPictureSubject(const QSize& size, bool forTurn)
{
    PictureSubject subject;
    subject.root = m_root;
    subject.camera = m_camera.getPictureCamera(static_cast<float>(std::max(1, size.width())) /
                                                   static_cast<float>(std::max(1, size.height())),
                                               forTurn);
    subject.ground = groundColor(palette());
    subject.setUp = [this](SoRenderer& renderer) { setUp(renderer); };
    return subject;
}

int SceneView::getDrawCount() const
{
    return m_surface->getDrawCount();
}

bool SceneView::isDrawing() const
{
    return m_surface->isUnfinished();
}

void SceneView::viewAll()
{
    m_camera.viewAll();
    redraw();
}

void SceneView::viewNode(SoNode* node)
{
    m_camera.viewNode(node);
    redraw();
}

SbRay SceneView::rayAt(const QPoint& place) const
{
    const float x = (static_cast<float>(place.x()) + 0.5F) / static_cast<float>(std::max(1, width()));
    const float y = 1 - (static_cast<float>(place.y()) + 0.5F) / static_cast<float>(std::max(1, height()));
    return m_camera.get().getRay(x, y, m_camera.getAspect());
}

template <class Action>
void SceneView::cut(Action& action) const
{
    action.setClipPlane(m_clipPlane ? &*m_clipPlane : nullptr);
    action.setHiding(m_states ? &m_states->getUntouchable() : nullptr);
}

std::optional<SoPickedPoint> SceneView::pick(const QPoint& place)
{
    if (!m_root)
        return std::nullopt;
    cut(m_pickAction);
    return m_pickAction.pick(m_root.get(), rayAt(place));
}

std::vector<SoPickedPoint> SceneView::pickAll(const QPoint& place)
{
    if (!m_root)
        return {};
    cut(m_pickAction);
    return m_pickAction.pickAll(m_root.get(), rayAt(place));
}

std::vector<SoPath> SceneView::findSeen(const QRect& area)
{
    const QRect inside = area & rect();
    if (!m_root || inside.isEmpty())
        return {};
    SoAreaPickAction action;
    cut(action);
    action.setEye(m_camera.get().position.getValue());
    const SoCamera& camera = m_camera.get();
    const auto across = [this](int x) { return static_cast<float>(x) / static_cast<float>(width()); };
    const auto up = [this](int y) { return 1 - static_cast<float>(y) / static_cast<float>(height()); };
    return action.pick(
        m_root.get(), camera.getViewMatrix() * camera.getProjectionMatrix(m_camera.getAspect()),
        {across(inside.left()), up(inside.bottom() + 1), across(inside.right() + 1), up(inside.top())},
        inside.width(), inside.height());
}

std::vector<std::uint32_t> SceneView::findCovered(const SoPath& part, const QSize& size)
{
    SoAreaPickAction action;
    cut(action);
    action.setEye(m_camera.get().position.getValue());
    const SoCamera& camera = m_camera.get();
    return action.cover(part, camera.getViewMatrix() * camera.getProjectionMatrix(m_camera.getAspect()), {},
                        size.width(), size.height());
}

void SceneView::mousePressEvent(QMouseEvent* event)
{
    m_mayClick = false;
    const bool isAltDrag = m_mouseScheme == MouseScheme::Maya && event->modifiers() & Qt::AltModifier;
    if (!isAltDrag && m_tools.press(*event))
        return;
    m_drag = dragOf(m_mouseScheme, event->button(), event->modifiers());
    m_mayClick = event->button() == Qt::LeftButton && m_drag != MouseDrag::Pan;
    m_moved = false;
    m_pressed = m_last = event->pos();
}

void SceneView::mouseMoveEvent(QMouseEvent* event)
{
    const bool isTrembling = (event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance();
    m_mayClick = m_mayClick && isTrembling;
    if (m_drag == MouseDrag::None) {
        m_tools.move(*event);
        return;
    }
    if (!m_moved && isTrembling)
        return;
    m_moved = true;
    const QPoint by = event->pos() - m_last;
    m_last = event->pos();
    const float scale = 1 / static_cast<float>(std::max(1, height()));
    const float right = static_cast<float>(by.x()) * scale;
    const float up = static_cast<float>(-by.y()) * scale;
    if (m_drag == MouseDrag::Orbit)
        turn(right, up);
    else if (m_drag == MouseDrag::Pan)
        pan(right, up);
    else
        zoom(std::pow(ZoomPerHeight, up + right));
}

void SceneView::lookFrom(const SbVec3f& side)
{
    m_camera.lookFrom(side);
    redraw();
}

void SceneView::lookThrough(const SceneCamera& camera)
{
    m_camera.lookThrough(camera);
    redraw();
}

void SceneView::setParallel(bool on)
{
    m_camera.setParallel(on);
    redraw();
}

void SceneView::walk(float right, float up, float ahead)
{
    m_camera.walk(right, up, ahead);
    redraw();
}

void SceneView::look(float right, float up)
{
    m_camera.look(right, up);
    redraw();
}

void SceneView::turn(float right, float up)
{
    m_camera.turn(right, up);
    redraw();
}

void SceneView::pan(float right, float up)
{
    m_camera.pan(right, up);
    redraw();
}

void SceneView::zoom(float factor)
{
    m_camera.zoom(factor);
    redraw();
}

void SceneView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_drag == MouseDrag::None && m_tools.release(*event))
        return;
    const bool clicked = m_mayClick && event->button() == Qt::LeftButton;
    m_mayClick = false;
    m_drag = MouseDrag::None;
    if (!clicked)
        return;
    const auto hit = pick(event->pos());
    if (hit && m_pickFilter && event->modifiers() == Qt::NoModifier && m_pickFilter(*hit, event->pos()))
        return;
    emit picked(hit ? hit->path : SoPath());
}

void SceneView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (m_tools.doubleClick(*event))
        return;
    if (event->button() == Qt::LeftButton && pick(event->pos()))
        emit viewSelectedRequested();
}

void SceneView::wheelEvent(QWheelEvent* event)
{
    if (m_tools.wheel(*event))
        return event->accept();
    const QPointF place = event->position();
    const float notches = static_cast<float>(event->angleDelta().y()) / 120.0F;
    const float x = static_cast<float>(place.x()) / static_cast<float>(std::max(1, width()));
    const float y = 1 - static_cast<float>(place.y()) / static_cast<float>(std::max(1, height()));
    m_camera.zoom(std::pow(WheelStep, notches), x, y);
    redraw();
    event->accept();
}

void SceneView::keyPressEvent(QKeyEvent* event)
{
    if (m_tools.keyPress(*event))
        return;
    const auto go = event->modifiers() & Qt::ShiftModifier ? &SceneView::pan : &SceneView::turn;
    switch (event->key()) {
    case Qt::Key_Home:
        return goHome();
    case Qt::Key_A:
        return viewAll();
    case Qt::Key_F:
        emit viewSelectedRequested();
        return;
    case Qt::Key_Left:
        return (this->*go)(-KeyStep, 0);
    case Qt::Key_Right:
        return (this->*go)(KeyStep, 0);
    case Qt::Key_Up:
        return (this->*go)(0, KeyStep);
    case Qt::Key_Down:
        return (this->*go)(0, -KeyStep);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(WheelStep); // plus without Shift, on many keyboards
    case Qt::Key_Minus:
        return zoom(1 / WheelStep);
    default:
        QWidget::keyPressEvent(event);
    }
}

void SceneView::keyReleaseEvent(QKeyEvent* event)
{
    if (!m_tools.keyRelease(*event))
        QWidget::keyReleaseEvent(event);
}

void SceneView::leaveEvent(QEvent* event)
{
    m_tools.leave();
    QWidget::leaveEvent(event);
}

void SceneView::focusOutEvent(QFocusEvent* event)
{
    m_tools.loseFocus();
    QWidget::focusOutEvent(event);
}

bool SceneView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && m_tools.wantsKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void SceneView::resizeEvent(QResizeEvent* /*event*/)
{
    m_surface->getWidget()->setGeometry(rect());
    m_tools.setGeometry(rect());
    m_camera.setAspect(static_cast<float>(std::max(1, width())) / static_cast<float>(std::max(1, height())));
    redraw();
}

void SceneView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        redraw();
    QWidget::changeEvent(event);
}

} // namespace scopix
