// SPDX-License-Identifier: MIT
#include "handles/HandleTool.h"

#include "handles/PathPlace.h"
#include "services/HostServices.h"
#include "text/NodeText.h"
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
    connect(&services.undoStack(), &QUndoStack::indexChanged, this, &HandleTool::stackMoved);
    view.addTool(this);
}

HandleTool::~HandleTool()
{
    if (m_viewLives)
        m_view.removeTool(this);
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
    if (m_drag)
        constrain(m_drag->getPart());
    emit ofWorldChanged();
    m_view.repaintTools();
}

void HandleTool::selectionChanged()
{
    if (m_isSelecting)
        return;
    giveBack();
    m_isStale = true;
    sayWhatIsMoved();
    m_view.repaintTools();
}

// Undone or redone meanwhile: what is shown is no longer what the drag began with.
void HandleTool::stackMoved()
{
    giveBack();
    m_isStale = true;
}

void HandleTool::refresh()
{
    if (m_drag || !std::exchange(m_isStale, false))
        return;
    m_target.reset();
    m_added.reset();
    m_selected = m_mode == HandleMode::Select ? SoPath() : m_services.getSelectedPath();
    m_subject = findHandleSubject(m_selected);
    if (!m_subject.isEmpty())
        makeTarget(m_subject);
}

void HandleTool::makeTarget(const HandleSubject& subject)
{
    const auto part = findPlace(subject.part);
    if (!part)
        return;
    if (!subject.node.isEmpty()) {
        if (const auto place = findPlace(subject.node)) {
            SoPath around;
            for (int i = 0; i + 1 < subject.part.getLength(); ++i)
                around.append(subject.part.getNode(i));
            const auto scope = part->box.isEmpty() ? findPlace(around) : part;
            m_target = HandleTarget::make(subject.node.getTail(), place->toWorld,
                                          scope ? scope->toWorld.transform(scope->box) : SbBox3f());
        }
        return;
    }
    const SbVec3f center = part->box.isEmpty() ? SbVec3f() : part->box.getCenter();
    m_added = std::make_shared<AddedTransform>(subject, center);
    m_target = HandleTarget::make(m_added->getTransform(), part->toWorld, {});
}

const HandleTarget* HandleTool::getTarget()
{
    refresh();
    return m_target.get();
}

HandleShape HandleTool::getShape()
{
    refresh();
    if (!m_target || m_mode == HandleMode::Select)
        return {};
    return {*m_target, m_mode, m_ofWorld, m_view.getSight()};
}

void HandleTool::sayWhatIsMoved()
{
    if (m_mode == HandleMode::Select)
        return;
    refresh();
    if (m_selected.isEmpty())
        return;
    const QString part = nodeText(*m_subject.part.getTail());
    if (!m_target) {
        emit said(tr("There are no handles for “%1”: it is not in sight.").arg(part));
        return;
    }
    const QString node = nodeText(*m_target->getNode());
    if (!m_target->can(m_mode))
        emit said(m_mode == HandleMode::Move   ? tr("“%1” cannot be moved: it has no place.").arg(node)
                  : m_mode == HandleMode::Turn ? tr("“%1” cannot be turned: it has no direction.").arg(node)
                                               : tr("“%1” cannot be scaled: it has no size.").arg(node));
    else if (m_added)
        emit said(tr("Dragging a handle puts a Transform above “%1”.").arg(part));
    else if (m_subject.node.getTail() != m_subject.part.getTail())
        emit said(tr("The handles change “%1”, which moves “%2”.").arg(node, part));
}

bool HandleTool::begin(HandlePart part, Held held, const QPointF& place)
{
    refresh();
    if (!m_target || !m_target->can(m_mode))
        return false;
    m_held = held;
    m_pressed = place;
    m_typed.clear();
    m_drag = std::make_unique<HandleDrag>(*m_target, m_mode, part, m_ofWorld, m_view.getSight(), place);
    m_amounts = {m_drag->getNothing(), m_drag->getNothing()};
    m_view.repaintTools();
    return true;
}

// The same drag along something else.
void HandleTool::constrain(HandlePart part)
{
    if (m_edit.isActive())
        m_edit.write([this] { m_drag->apply({m_drag->getNothing(), m_drag->getNothing()}); });
    m_drag = std::make_unique<HandleDrag>(*m_target, m_mode, part, m_ofWorld, m_view.getSight(), m_pressed);
    m_amounts = {m_drag->getNothing(), m_drag->getNothing()};
    if (!m_typed.isEmpty())
        show(typedAmounts());
    else if (m_held == Held::Mouse)
        followMouse(m_place, m_snaps);
    m_view.repaintTools();
}

void HandleTool::show(const HandleDrag::Amounts& amounts)
{
    m_amounts = amounts;
    if (!m_edit.isActive()) {
        if (m_added) {
            m_edit.begin(m_added);
            selectPart(true);
        } else {
            m_edit.begin(m_target->getNode(), m_target->getFields(m_mode));
        }
    }
    m_edit.write([&] { m_drag->apply(amounts); });
    m_view.redraw();
}

// What is selected stays so, at its other place.
void HandleTool::selectPart(bool isIn)
{
    SoPath path = isIn ? m_added->getPartPath() : m_subject.part;
    for (int i = m_subject.part.getLength(); i < m_selected.getLength(); ++i)
        path.append(m_selected.getNode(i));
    m_isSelecting = true;
    // The tree first sees that the part stands elsewhere, and selects nothing; then it finds it there.
    SoSensorQueue::getInstance().process();
    m_services.selectPath(path);
    m_isSelecting = false;
}

void HandleTool::followMouse(const QPointF& place, bool snaps)
{
    if (m_typed.isEmpty())
        show(m_drag->getAmounts(place, snaps));
}

void HandleTool::keep()
{
    if (!m_drag)
        return;
    const bool isAdded = m_edit.isActive() && m_added;
    const bool isKept = m_edit.keep(stepName());
    if (isAdded && isKept)
        emit said(tr("Put a Transform above “%1”.").arg(nodeText(*m_subject.part.getTail())));
    else if (isAdded)
        selectPart(false);
    end();
}

void HandleTool::giveBack()
{
    if (!m_drag)
        return;
    const bool isAdded = m_edit.isActive() && m_added;
    m_edit.giveBack();
    if (isAdded)
        selectPart(false);
    end();
}

void HandleTool::end()
{
    m_drag.reset();
    m_typed.clear();
    m_isStale = true;
    m_view.redraw();
}

QString HandleTool::stepName() const
{
    const QString name = nodeText(*m_subject.part.getTail());
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
    if (m_isPressed || (m_drag && m_held == Held::Mouse))
        return true;
    if (m_drag) // by keys; a press anywhere is Enter, or with another button Escape
        event.button() == Qt::LeftButton ? keep() : giveBack();
    if (event.button() != Qt::LeftButton || event.modifiers() & Qt::AltModifier)
        return false;
    const HandlePart part = getShape().partAt(event.localPos());
    m_isPressed = part != HandlePart::None && begin(part, Held::Mouse, event.localPos());
    return m_isPressed;
}

bool HandleTool::mouseMoved(QMouseEvent& event)
{
    m_place = event.localPos();
    m_snaps = event.modifiers() & Qt::ControlModifier;
    if (m_drag && m_held == Held::Mouse) {
        followMouse(m_place, m_snaps);
        return true;
    }
    if (m_isPressed)
        return true;
    const HandlePart before = m_hovered;
    m_hovered = event.buttons() == Qt::NoButton && !m_drag ? getShape().partAt(m_place) : HandlePart::None;
    if (m_hovered != before)
        m_view.repaintTools();
    return m_hovered != HandlePart::None;
}

bool HandleTool::mouseReleased(QMouseEvent& event)
{
    if (!m_isPressed || event.button() != Qt::LeftButton)
        return m_isPressed;
    m_isPressed = false;
    if (m_drag && m_held == Held::Mouse)
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
    if (m_drag && m_held == Held::Keys)
        giveBack();
}

bool HandleTool::isIdleKey(const QKeyEvent& event) const
{
    return m_mode != HandleMode::Select && isPlain(event) &&
           partOfKey(event.key(), false) != HandlePart::None;
}

bool HandleTool::wantsKey(const QKeyEvent& event)
{
    if (!m_drag)
        return isIdleKey(event) && getTarget();
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
    if (!m_drag)
        return begin(part, Held::Keys, getShape().getCenter());
    if (part != HandlePart::None) {
        // The same axis once more: of the world, of what is moved.
        if (usablePart(*m_target, m_mode, part) == m_drag->getPart())
            setOfWorld(!m_ofWorld);
        else
            constrain(part);
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Escape:
        giveBack();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        keep();
        break;
    case Qt::Key_Left:
        nudge(-1, 0);
        break;
    case Qt::Key_Right:
        nudge(1, 0);
        break;
    case Qt::Key_Down:
        nudge(-1, m_drag->getCount() - 1);
        break;
    case Qt::Key_Up:
        nudge(1, m_drag->getCount() - 1);
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
    amount = (std::round(amount / m_drag->getStep()) + steps) * m_drag->getStep();
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
    HandleDrag::Amounts amounts{m_drag->getNothing(), m_drag->getNothing()};
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
    shape.paint(painter, m_drag ? m_drag->getPart() : m_hovered, m_drag != nullptr);
    if (!m_drag)
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
    const int axis = axisOf(m_drag->getPart());
    if (isAcross(m_drag->getPart()))
        words << QLatin1String(names[(axis + 1) % 3]) + QLatin1String(names[(axis + 2) % 3]);
    else if (axis >= 0)
        words << QLatin1String(names[axis]);
    if (!m_typed.isEmpty()) {
        words << m_typed + QChar(0x2502);
    } else {
        for (int i = 0; i < m_drag->getCount(); ++i) {
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
    if (m_drag && m_held == Held::Mouse)
        return QCursor(Qt::ClosedHandCursor);
    if (m_hovered != HandlePart::None)
        return QCursor(Qt::OpenHandCursor);
    return std::nullopt;
}

} // namespace scopix
