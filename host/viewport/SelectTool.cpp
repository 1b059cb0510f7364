// SPDX-License-Identifier: MIT
#include "viewport/SelectTool.h"

#include "viewport/SceneParts.h"
#include "viewport/SceneView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <unordered_set>

namespace scopix
{

namespace
{

constexpr int FrameMs = 16;
constexpr int CrosshairStep = 12;
constexpr int CrosshairSize = 9;
constexpr int MostListed = 40;

bool contains(const QList<SoPath>& paths, const SoPath& path)
{
    return std::any_of(paths.begin(), paths.end(),
                       [&](const SoPath& each) { return isSamePath(each, path); });
}

QPoint stepOf(const QKeyEvent& event)
{
    const int step = event.modifiers() & Qt::AltModifier ? 1 : CrosshairStep;
    switch (event.key()) {
    case Qt::Key_Left:
        return {-step, 0};
    case Qt::Key_Right:
        return {step, 0};
    case Qt::Key_Up:
        return {0, -step};
    case Qt::Key_Down:
        return {0, step};
    default:
        return {};
    }
}

} // namespace

SelectTool::SelectTool(SceneView& view, Selected selected)
    : m_view(view)
    , m_selected(std::move(selected))
    , m_hover(view)
{
}

SoPath SelectTool::current() const
{
    const QList<SoPath> paths = m_selected();
    return paths.isEmpty() ? SoPath() : paths.last();
}

void SelectTool::selectionChanged()
{
    if (m_hover.isShown())
        hoverSoon();
}

void SelectTool::setHovering(bool on)
{
    m_isHovering = on;
    m_hover.show({}, {});
}

void SelectTool::setPaused(bool on)
{
    m_isPaused = on;
    m_press = Press::None;
    endBand();
    m_hover.show({}, {});
}

QPoint SelectTool::getCrosshair() const
{
    return m_hasCrosshair ? m_crosshair : m_view.rect().center();
}

void SelectTool::click(const SoPath& toShape)
{
    m_wentOn = false;
    if (toShape.isEmpty())
        return emit selectRequested({});
    const SoPath part = clickedPart(toShape, current());
    m_wentOn = !isSamePath(part, namedPart(toShape));
    emit selectRequested({part});
}

SoPath SelectTool::partAt(const QPoint& place)
{
    const auto hit = m_view.pick(place);
    return hit ? clickedPart(hit->path, current()) : SoPath();
}

bool SelectTool::mousePressed(QMouseEvent& event)
{
    stopHovering();
    hideCrosshair();
    m_wentOn = false;
    if (event.button() != Qt::LeftButton || m_isPaused)
        return m_press != Press::None;
    const Qt::KeyboardModifiers keys = event.modifiers();
    m_press = keys & Qt::ShiftModifier     ? Press::Band
              : keys & Qt::ControlModifier ? Press::Toggle
              : keys & Qt::AltModifier     ? Press::List
                                           : Press::None;
    m_pressed = event.pos();
    return m_press != Press::None;
}

bool SelectTool::mouseMoved(QMouseEvent& event)
{
    if (m_press != Press::None) {
        const bool isFar = (event.pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
        if (m_press == Press::Band && (m_hasBand || isFar)) {
            m_hasBand = true;
            m_bandFrom = m_pressed;
            m_bandTo = event.pos();
            m_view.repaintTools();
        }
        return true;
    }
    if (event.buttons() != Qt::NoButton)
        return false;
    hideCrosshair();
    m_hovers = true;
    m_hoverAt = event.pos();
    hoverSoon();
    return false;
}

bool SelectTool::mouseReleased(QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || m_press == Press::None)
        return false;
    const Press press = std::exchange(m_press, Press::None);
    if (m_hasBand) {
        finishBand((event.modifiers() & Qt::ControlModifier) != 0);
        return true;
    }
    if ((event.pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance())
        return true;
    if (press == Press::List)
        list(event.pos());
    else
        toggle(event.pos());
    return true;
}

// What is seen whole is the part, although the first of the two clicks has gone on within it.
bool SelectTool::mouseDoubleClicked(QMouseEvent& event)
{
    const bool hasKeys = event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    const auto hit = std::exchange(m_wentOn, false) && !hasKeys ? m_view.pick(event.pos()) : std::nullopt;
    if (hit)
        emit selectRequested({namedPart(hit->path)});
    return hasKeys;
}

void SelectTool::mouseLeft()
{
    stopHovering();
}

void SelectTool::focusLost()
{
    hideCrosshair();
}

void SelectTool::toggle(const QPoint& place)
{
    const auto hit = m_view.pick(place);
    if (!hit)
        return;
    QList<SoPath> paths = m_selected();
    const SoPath part = namedPart(hit->path);
    const auto isIt = [&](const SoPath& path) {
        return isSamePath(path, part) || isSamePath(path, hit->path);
    };
    const auto kept = std::remove_if(paths.begin(), paths.end(), isIt);
    if (kept == paths.end())
        paths.append(part);
    else
        paths.erase(kept, paths.end());
    emit selectRequested(paths);
}

void SelectTool::list(const QPoint& place)
{
    const std::vector<SoPickedPoint> all = m_view.pickAll(place);
    if (all.empty())
        return;
    auto* menu = new QMenu(&m_view);
    menu->setObjectName(QStringLiteral("underPointer"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QList<SoPath> listed;
    for (const SoPickedPoint& point : all) {
        if (listed.size() == MostListed) {
            menu->addAction(tr("%n more behind", nullptr, static_cast<int>(all.size()) - MostListed))
                ->setEnabled(false);
            break;
        }
        const SoPath part = namedPart(point.path);
        const SoPath path = contains(listed, part) ? point.path : part;
        listed.append(path);
        QString text = partText(path);
        text.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* entry = menu->addAction(text, this, [this, path] { emit selectRequested({path}); });
        connect(entry, &QAction::hovered, this, [this, path, place] { m_hover.show(path, place); });
    }
    connect(menu, &QMenu::aboutToHide, this, &SelectTool::stopHovering);
    menu->popup(m_view.mapToGlobal(place));
    menu->setActiveAction(menu->actions().first());
}

void SelectTool::finishBand(bool adds)
{
    const QRect band = getBand();
    endBand();
    QList<SoPath> paths = adds ? m_selected() : QList<SoPath>();
    // Paths are equal where all their nodes are; a part is known by what it consists of.
    struct Hash {
        std::size_t operator()(const std::vector<const SoNode*>& nodes) const
        {
            std::size_t sum = 0;
            for (const SoNode* node : nodes)
                sum = sum * 31 + std::hash<const SoNode*>()(node);
            return sum;
        }
    };
    std::unordered_set<std::vector<const SoNode*>, Hash> known;
    const auto isNew = [&known](const SoPath& path) {
        std::vector<const SoNode*> nodes;
        for (int i = 0; i < path.getLength(); ++i)
            nodes.push_back(path.getNode(i));
        return known.insert(std::move(nodes)).second;
    };
    for (const SoPath& path : paths)
        isNew(path);
    for (const SoPath& path : m_view.findSeen(band)) {
        const SoPath part = namedPart(path);
        if (isNew(part))
            paths.append(part);
    }
    emit selectRequested(paths);
}

void SelectTool::endBand()
{
    m_hasBand = false;
    m_view.repaintTools();
}

void SelectTool::hoverSoon()
{
    if (!m_hoverTimer.isActive())
        m_hoverTimer.start(static_cast<int>(std::max<qint64>(FrameMs, 2 * m_hoverMs)), this);
}

void SelectTool::timerEvent(QTimerEvent* /*event*/)
{
    m_hoverTimer.stop();
    hover();
}

void SelectTool::hover()
{
    const bool isFree = m_press == Press::None && QApplication::mouseButtons() == Qt::NoButton;
    if (!(m_hovers || m_hasCrosshair) || !isFree || !m_isHovering || m_isPaused)
        return;
    QElapsedTimer time;
    time.start();
    const QPoint place = m_hasCrosshair ? m_crosshair : m_hoverAt;
    m_hover.show(partAt(place), place);
    m_hoverMs = time.elapsed();
}

void SelectTool::stopHovering()
{
    m_hovers = false;
    m_hoverTimer.stop();
    m_hover.show({}, {});
}

void SelectTool::goUp()
{
    const SoPath above = partAbove(current());
    emit selectRequested(above.isEmpty() ? QList<SoPath>() : QList<SoPath>{above});
}

bool SelectTool::keyPressed(QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return moveCrosshair(event);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return !m_isPaused && clickAtCrosshair(event.modifiers());
    case Qt::Key_Escape:
        if (m_hasBand || m_press != Press::None) {
            m_press = Press::None;
            endBand();
        } else if (m_hasCrosshair) {
            hideCrosshair();
        } else if (m_selected().isEmpty()) {
            return false;
        } else {
            goUp();
        }
        return true;
    default:
        return false;
    }
}

bool SelectTool::moveCrosshair(const QKeyEvent& event)
{
    if (!(event.modifiers() & Qt::ControlModifier))
        return false;
    const QPoint to = getCrosshair() + stepOf(event);
    const QRect inside = m_view.rect();
    m_crosshair = {std::clamp(to.x(), inside.left(), inside.right()),
                   std::clamp(to.y(), inside.top(), inside.bottom())};
    m_hasCrosshair = true;
    if (m_hasBand)
        m_bandTo = m_crosshair;
    else
        hoverSoon();
    m_view.repaintTools();
    return true;
}

bool SelectTool::clickAtCrosshair(Qt::KeyboardModifiers keys)
{
    const QPoint place = getCrosshair();
    if (m_hasBand) {
        finishBand((keys & Qt::ControlModifier) != 0);
    } else if (keys & Qt::ShiftModifier) {
        m_hasBand = m_hasCrosshair = true;
        m_crosshair = m_bandFrom = m_bandTo = place;
        m_view.repaintTools();
    } else if (keys & Qt::ControlModifier) {
        toggle(place);
    } else if (keys & Qt::AltModifier) {
        list(place);
    } else {
        const auto hit = m_view.pick(place);
        click(hit ? hit->path : SoPath());
    }
    return true;
}

void SelectTool::hideCrosshair()
{
    if (!m_hasCrosshair)
        return;
    m_hasCrosshair = false;
    m_hasBand = m_hasBand && m_press == Press::Band;
    m_hover.show({}, {});
    m_view.repaintTools();
}

void SelectTool::paint(QPainter& painter, const ViewSight& /*sight*/)
{
    m_hover.paint(painter);
    if (m_hover.isShown() && m_hover.isOld() && (m_hovers || m_hasCrosshair))
        hoverSoon();
    painter.setRenderHint(QPainter::Antialiasing, false);
    const QColor color = m_view.palette().color(QPalette::Highlight);
    if (m_hasBand) {
        QColor within = color;
        within.setAlphaF(0.2);
        painter.setPen(color);
        painter.setBrush(within);
        painter.drawRect(getBand());
    }
    if (m_hasCrosshair) {
        painter.setPen(QPen(Qt::black, 3));
        for (int pass = 0; pass < 2; ++pass) {
            painter.drawLine(m_crosshair - QPoint(CrosshairSize, 0), m_crosshair + QPoint(CrosshairSize, 0));
            painter.drawLine(m_crosshair - QPoint(0, CrosshairSize), m_crosshair + QPoint(0, CrosshairSize));
            painter.setPen(Qt::white);
        }
    }
}

std::optional<QCursor> SelectTool::getCursor() const
{
    return m_press == Press::Band ? std::optional<QCursor>(Qt::CrossCursor) : std::nullopt;
}

} // namespace scopix
