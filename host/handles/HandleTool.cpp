// SPDX-License-Identifier: MIT
#include "handles/HandleTool.h"

#include "services/HostServices.h"
#include "structure/SceneStates.h"
#include "viewport/SceneView.h"

#include <xsg/sensors/SoSensorQueue.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr int LongestNumber = 40; // characters
constexpr double LabelGap = 16;
constexpr double Finer = 0.1;

HandlePart partOfKey(int key, bool across)
{
    if (key < Qt::Key_X || key > Qt::Key_Z)
        return HandlePart::None;
    return HandlePart(int(across ? HandlePart::AcrossX : HandlePart::X) + key - Qt::Key_X);
}

bool isNumberText(const QString& text)
{
    return text.size() == 1 && QStringLiteral("0123456789.,- ").contains(text);
}

bool isPlain(const QKeyEvent& event)
{
    return !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

} // namespace

HandleTool::HandleTool(HostServices& services, SceneView& view)
    : m_services(services)
    , m_view(view)
    , m_viewLives(&view)
    , m_edit(services)
{
    connect(&services, &SpxServices::selectedNodeChanged, this, &HandleTool::selectionChanged);
    connect(&services, &HostServices::selectionChanged, this, &HandleTool::selectionMayHaveChanged);
    connect(&services.undoStack(), &QUndoStack::indexChanged, this, &HandleTool::stackMoved);
    view.addTool(this);
}

HandleTool::~HandleTool()
{
    if (m_viewLives)
        m_view.removeTool(this);
}

void HandleTool::setStates(SceneStates* states)
{
    m_states = states;
    if (!states)
        return;
    connect(states, &SceneStates::changed, this, [this] {
        giveBack();
        m_isStale = true;
        m_view.repaintTools();
    });
}

void HandleTool::setMode(HandleMode mode)
{
    if (mode == m_mode)
        return;
    giveBack();
    m_mode = mode;
    m_isStale = true;
    m_hovered = HandlePart::None;
    emit modeChanged();
    sayWhatIsMoved();
    m_view.repaintTools();
}

void HandleTool::setOfWorld(bool on)
{
    if (on == m_ofWorld)
        return;
    m_ofWorld = on;
    if (isDragging())
        constrain(m_group.getDrag()->getPart());
    emit ofWorldChanged();
    m_view.repaintTools();
}

void HandleTool::selectionChanged()
{
    if (m_isSelecting)
        return;
    giveBack();
    m_isStale = true;
    m_known = m_services.getSelectedNodes();
    sayWhatIsMoved();
    m_view.repaintTools();
}

// One was added or taken away, and the last one stays.
void HandleTool::selectionMayHaveChanged()
{
    if (!m_isSelecting && m_services.getSelectedNodes() != m_known)
        selectionChanged();
}

// Undone or redone meanwhile: what is shown is no longer what the drag began with.
void HandleTool::stackMoved()
{
    giveBack();
    m_isStale = true;
    const QList<SoPath> paths = m_edit.takeSelection();
    if (paths.isEmpty())
        return;
    SoSensorQueue::getInstance().process(); // as in selectParts()
    m_services.selectPaths(paths);
}

void HandleTool::refresh()
{
    if (isDragging() || !std::exchange(m_isStale, false))
        return;
    const bool isOff = m_mode == HandleMode::Select;
    m_group.find(isOff ? QList<SoPath>() : m_services.getSelectedPaths(), m_mode, m_states);
}

const HandleTarget* HandleTool::getTarget()
{
    refresh();
    return m_group.getTarget();
}

int HandleTool::getTargetCount()
{
    refresh();
    return m_group.getCount();
}

HandleShape HandleTool::getShape()
{
    refresh();
    if (!m_group.getTarget() || m_mode == HandleMode::Select)
        return {};
    return {*m_group.getTarget(), m_mode, m_ofWorld, m_view.getSight()};
}

void HandleTool::sayWhatIsMoved()
{
    if (m_mode == HandleMode::Select)
        return;
    refresh();
    const QString sentence = m_group.describe();
    if (!sentence.isEmpty())
        emit said(sentence);
}

bool HandleTool::begin(HandlePart part, Held held, const QPointF& place)
{
    refresh();
    if (!m_group.canBeDragged())
        return false;
    m_held = held;
    m_pressed = place;
    m_place = place;
    m_typed.clear();
    beginDrags(part);
    m_view.repaintTools();
    return true;
}

void HandleTool::beginDrags(HandlePart part)
{
    m_group.beginDrags(part, m_ofWorld, m_view.getSight(), m_pressed);
    m_amounts = m_group.getNothing();
}

void HandleTool::apply(const HandleDrag::Amounts& amounts)
{
    m_edit.write([&] { m_group.apply(amounts); });
}

// The same drag along something else.
void HandleTool::constrain(HandlePart part)
{
    if (m_edit.isActive())
        apply(m_group.getNothing());
    beginDrags(part);
    if (!m_typed.isEmpty())
        show(typedAmounts());
    else if (m_held == Held::Mouse)
        followMouse(m_place, m_snaps);
    m_view.repaintTools();
}

void HandleTool::beginEdit()
{
    m_group.addTo(m_edit);
    const auto added = m_group.getAdded();
    if (!added.empty())
        selectParts(added);
}

void HandleTool::show(const HandleDrag::Amounts& amounts)
{
    m_amounts = amounts;
    if (!m_edit.isActive())
        beginEdit();
    apply(amounts);
    m_view.redraw();
}

// What is selected stays so, at its other place.
void HandleTool::selectParts(const std::vector<std::shared_ptr<AddedTransform>>& added)
{
    QList<SoPath> paths;
    for (SoPath path : m_group.getSelected()) {
        for (const auto& each : added) {
            if (each->isIn())
                path = each->pathWith(path);
        }
        paths.append(path);
    }
    m_isSelecting = true;
    // The tree first sees that the part stands elsewhere, and selects nothing; then it finds it there.
    SoSensorQueue::getInstance().process();
    m_services.selectPaths(paths);
    m_isSelecting = false;
}

void HandleTool::followMouse(const QPointF& place, bool snaps)
{
    if (m_typed.isEmpty())
        show(m_group.getDrag()->getAmounts(place, snaps));
}

void HandleTool::keep()
{
    if (!isDragging())
        return;
    const auto added =
        m_edit.isActive() ? m_group.getAdded() : std::vector<std::shared_ptr<AddedTransform>>();
    const QString part = m_group.getPartName();
    m_edit.keep(stepName());
    const auto stays =
        std::count_if(added.begin(), added.end(), [](const auto& each) { return each->isIn(); });
    if (stays < static_cast<std::ptrdiff_t>(added.size()))
        selectParts(added);
    if (stays == 1)
        emit said(tr("Put a Transform above “%1”.").arg(part));
    else if (stays > 1)
        emit said(tr("Put a Transform above each of %1 parts.").arg(stays));
    end();
}

void HandleTool::giveBack()
{
    if (!isDragging())
        return;
    const auto added =
        m_edit.isActive() ? m_group.getAdded() : std::vector<std::shared_ptr<AddedTransform>>();
    m_edit.giveBack();
    if (!added.empty())
        selectParts(added);
    end();
}

void HandleTool::end()
{
    m_group.endDrags();
    m_typed.clear();
    m_isStale = true;
    m_view.redraw();
}

QString HandleTool::stepName() const
{
    const QString name = m_group.getName();
    switch (m_mode) {
    case HandleMode::Move:
        return tr("Move %1").arg(name);
    case HandleMode::Turn:
        return tr("Turn %1").arg(name);
    default:
        return tr("Scale %1").arg(name);
    }
}

bool HandleTool::mousePressed(QMouseEvent& event)
{
    if (m_isPressed || (isDragging() && m_held == Held::Mouse))
        return true;
    if (isDragging()) // by keys; a press anywhere is Enter, or with another button Escape
        event.button() == Qt::LeftButton ? keep() : giveBack();
    if (event.button() != Qt::LeftButton || event.modifiers() & Qt::AltModifier)
        return false;
    const HandlePart part = getShape().partAt(event.localPos());
    m_mouse = event.localPos();
    m_isPressed = part != HandlePart::None && begin(part, Held::Mouse, m_mouse);
    return m_isPressed;
}

// With Shift a handle follows by a tenth; from there it goes on without a jump.
void HandleTool::pointTo(const QMouseEvent& event)
{
    const bool isFine = isDragging() && event.modifiers() & Qt::ShiftModifier;
    m_place = isDragging() ? m_place + (event.localPos() - m_mouse) * (isFine ? Finer : 1) : event.localPos();
    m_mouse = event.localPos();
    m_snaps = event.modifiers() & Qt::ControlModifier;
}

bool HandleTool::mouseMoved(QMouseEvent& event)
{
    pointTo(event);
    if (isDragging() && m_held == Held::Mouse) {
        followMouse(m_place, m_snaps);
        return true;
    }
    if (m_isPressed)
        return true;
    const HandlePart before = m_hovered;
    m_hovered =
        event.buttons() == Qt::NoButton && !isDragging() ? getShape().partAt(m_place) : HandlePart::None;
    if (m_hovered != before)
        m_view.repaintTools();
    return m_hovered != HandlePart::None;
}

bool HandleTool::mouseReleased(QMouseEvent& event)
{
    if (!m_isPressed || event.button() != Qt::LeftButton)
        return m_isPressed;
    m_isPressed = false;
    if (isDragging() && m_held == Held::Mouse)
        keep();
    return true;
}

bool HandleTool::mouseDoubleClicked(QMouseEvent& event)
{
    return mousePressed(event);
}

void HandleTool::mouseLeft()
{
    if (std::exchange(m_hovered, HandlePart::None) != HandlePart::None)
        m_view.repaintTools();
}

void HandleTool::focusLost()
{
    if (isDragging() && m_held == Held::Keys)
        giveBack();
}

bool HandleTool::isIdleKey(const QKeyEvent& event) const
{
    return m_mode != HandleMode::Select && isPlain(event) &&
           partOfKey(event.key(), false) != HandlePart::None;
}

bool HandleTool::wantsKey(const QKeyEvent& event)
{
    if (!isDragging())
        return isIdleKey(event) && (getTarget() || !m_group.getRefusal().isEmpty());
    switch (event.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Backspace:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    default:
        return isPlain(event);
    }
}

bool HandleTool::keyPressed(QKeyEvent& event)
{
    if (!wantsKey(event))
        return false;
    const HandlePart part = partOfKey(event.key(), event.modifiers() & Qt::ShiftModifier);
    if (!isDragging() && !getTarget()) {
        emit said(m_group.getRefusal());
        return true;
    }
    if (!isDragging())
        return begin(part, Held::Keys, getShape().getCenter());
    if (part != HandlePart::None) {
        // The same axis once more: of the world, of what is moved.
        if (usablePart(*m_group.getTarget(), m_mode, part) == m_group.getDrag()->getPart())
            setOfWorld(!m_ofWorld);
        else
            constrain(part);
        return true;
    }
    const double step = event.modifiers() & Qt::ShiftModifier ? Finer : 1;
    switch (event.key()) {
    case Qt::Key_Escape:
        giveBack();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        keep();
        break;
    case Qt::Key_Left:
        nudge(-step, 0);
        break;
    case Qt::Key_Right:
        nudge(step, 0);
        break;
    case Qt::Key_Down:
        nudge(-step, m_group.getDrag()->getCount() - 1);
        break;
    case Qt::Key_Up:
        nudge(step, m_group.getDrag()->getCount() - 1);
        break;
    default:
        type(event);
    }
    return true;
}

void HandleTool::nudge(double steps, int component)
{
    m_typed.clear();
    HandleDrag::Amounts amounts = m_amounts;
    double& amount = amounts[static_cast<std::size_t>(component)];
    const double step = std::abs(steps) * m_group.getDrag()->getStep();
    amount = (std::round(amount / step) + (steps < 0 ? -1 : 1)) * step;
    show(amounts);
}

bool HandleTool::type(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Backspace)
        m_typed.chop(1);
    else if (isNumberText(event.text()) && m_typed.size() < LongestNumber)
        m_typed += event.text() == QLatin1String(",") ? QStringLiteral(".") : event.text();
    else
        return false;
    show(typedAmounts());
    return true;
}

// What is not yet a number changes nothing.
HandleDrag::Amounts HandleTool::typedAmounts() const
{
    HandleDrag::Amounts amounts = m_group.getNothing();
    const QStringList numbers = m_typed.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int i = 0; i < std::min(2, int(numbers.size())); ++i) {
        bool isNumber = false;
        const double number = numbers[i].toDouble(&isNumber);
        if (isNumber && std::isfinite(static_cast<float>(number)))
            amounts[static_cast<std::size_t>(i)] = number;
    }
    const bool isOneFactor = m_mode == HandleMode::Scale && numbers.size() == 1;
    if (isOneFactor)
        amounts[1] = amounts[0];
    return amounts;
}

void HandleTool::paint(QPainter& painter, const ViewSight& /*sight*/)
{
    const HandleShape shape = getShape();
    if (shape.isEmpty())
        return;
    shape.paint(painter, isDragging() ? m_group.getDrag()->getPart() : m_hovered, isDragging());
    if (!isDragging())
        return;
    const QString text = amountText();
    QRectF label = painter.fontMetrics().boundingRect(text).adjusted(-6, -3, 6, 3);
    label.moveTopLeft(shape.getCenter() + QPointF(LabelGap, LabelGap));
    label.moveRight(std::min(label.right(), m_view.width() - 4.0));
    label.moveBottom(std::min(label.bottom(), m_view.height() - 4.0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 190));
    painter.drawRoundedRect(label, 3, 3);
    painter.setPen(Qt::white);
    painter.drawText(label, Qt::AlignCenter, text);
}

QString HandleTool::amountText() const
{
    static const char* const names[] = {"X", "Y", "Z"};
    QStringList words;
    const int axis = axisOf(m_group.getDrag()->getPart());
    if (isAcross(m_group.getDrag()->getPart()))
        words << QLatin1String(names[(axis + 1) % 3]) + QLatin1String(names[(axis + 2) % 3]);
    else if (axis >= 0)
        words << QLatin1String(names[axis]);
    if (!m_typed.isEmpty()) {
        words << m_typed + QChar(0x2502);
    } else {
        for (int i = 0; i < m_group.getDrag()->getCount(); ++i) {
            const QString number = QString::number(m_amounts[static_cast<std::size_t>(i)], 'g', 5);
            words << (m_mode == HandleMode::Scale ? QStringLiteral("×") + number : number);
        }
    }
    if (m_mode == HandleMode::Turn)
        words.last() += QStringLiteral("°");
    if (axis >= 0 && m_mode != HandleMode::Scale && !m_ofWorld)
        words << tr("own axes");
    return words.join(QLatin1Char(' '));
}

std::optional<QCursor> HandleTool::getCursor() const
{
    if (isDragging() && m_held == Held::Mouse)
        return QCursor(Qt::ClosedHandCursor);
    if (m_hovered != HandlePart::None)
        return QCursor(Qt::OpenHandCursor);
    return std::nullopt;
}

} // namespace scopix
