// SPDX-License-Identifier: MIT
#include "handles/HandleTool.h"

#include "handles/PathPlace.h"
#include "services/HostServices.h"
#include "structure/SceneStates.h"
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

std::unique_ptr<HandleTarget> targetOf(const HandleSubject& subject, const PathPlace& part)
{
    const auto place = findPlace(subject.node);
    if (!place)
        return nullptr;
    SoPath around;
    for (int i = 0; i + 1 < subject.part.getLength(); ++i)
        around.append(subject.part.getNode(i));
    const auto scope = part.box.isEmpty() ? findPlace(around) : part;
    return HandleTarget::make(subject.node.getTail(), place->toWorld,
                              scope ? scope->toWorld.transform(scope->box) : SbBox3f());
}

// In a sentence, what is locked of the selected nodes and of what would be edited; empty for nothing.
template <class Subjects>
QString lockOf(const SceneStates& states, const QList<SoPath>& selected, const Subjects& subjects)
{
    std::vector<const SoNode*> nodes;
    for (const SoPath& path : selected)
        nodes.push_back(path.getTail());
    for (const HandleSubject& subject : subjects)
        nodes.push_back(subject.node.isEmpty() ? subject.group.get() : subject.node.getTail());
    for (const SoNode* node : nodes) {
        const QString refusal = states.refusalOf(*node);
        if (!refusal.isEmpty())
            return refusal;
    }
    return {};
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
    if (m_main.drag)
        constrain(m_main.drag->getPart());
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
    m_main = {};
    m_others.clear();
    m_selected = m_mode == HandleMode::Select ? QList<SoPath>() : m_services.getSelectedPaths();
    const auto subjects = findHandleSubjects({m_selected.begin(), m_selected.end()});
    m_refusal = m_states ? lockOf(*m_states, m_selected, subjects) : QString();
    if (!m_refusal.isEmpty() || subjects.empty())
        return;
    std::vector<Moved> all;
    for (const HandleSubject& subject : subjects)
        all.push_back(makeMoved(subject));
    chooseMain(std::move(all));
}

// Without a target where it is not in sight.
HandleTool::Moved HandleTool::makeMoved(const HandleSubject& subject)
{
    Moved made{subject, nullptr, nullptr, nullptr};
    const auto part = findPlace(subject.part);
    if (!part)
        return made;
    if (!subject.node.isEmpty()) {
        made.target = targetOf(subject, *part);
        return made;
    }
    const SbVec3f center = part->box.isEmpty() ? SbVec3f() : part->box.getCenter();
    made.added = std::make_shared<AddedTransform>(subject, center);
    made.target = HandleTarget::make(made.added->getTransform(), part->toWorld, {});
    return made;
}

// The last one that can be changed in this way, and with it all others that can, by the same amounts.
void HandleTool::chooseMain(std::vector<Moved> all)
{
    const auto can = [this](const Moved& each) { return each.target && each.target->can(m_mode); };
    auto main = std::find_if(all.rbegin(), all.rend(), can);
    if (main == all.rend())
        main = all.rbegin();
    m_main = std::move(*main);
    for (Moved& each : all) {
        if (m_main.target && can(each) && each.target->isFlat() == m_main.target->isFlat())
            m_others.push_back(std::move(each));
    }
}

const HandleTarget* HandleTool::getTarget()
{
    refresh();
    return m_main.target.get();
}

int HandleTool::getTargetCount()
{
    return getTarget() ? 1 + static_cast<int>(m_others.size()) : 0;
}

HandleShape HandleTool::getShape()
{
    refresh();
    if (!m_main.target || m_mode == HandleMode::Select)
        return {};
    return {*m_main.target, m_mode, m_ofWorld, m_view.getSight()};
}

void HandleTool::sayWhatIsMoved()
{
    if (m_mode == HandleMode::Select)
        return;
    refresh();
    const QString sentence = whatIsMoved();
    if (!sentence.isEmpty())
        emit said(sentence);
}

QString HandleTool::whatIsMoved() const
{
    if (!m_refusal.isEmpty() || m_main.subject.isEmpty())
        return m_refusal;
    const QString part = nodeText(*m_main.subject.part.getTail());
    if (!m_main.target)
        return tr("There are no handles for “%1”: it is not in sight.").arg(part);
    const QString node = nodeText(*m_main.target->getNode());
    if (!m_main.target->can(m_mode))
        return m_mode == HandleMode::Move   ? tr("“%1” cannot be moved: it has no place.").arg(node)
               : m_mode == HandleMode::Turn ? tr("“%1” cannot be turned: it has no direction.").arg(node)
                                            : tr("“%1” cannot be scaled: it has no size.").arg(node);
    const std::size_t added = getAdded().size();
    if (!m_others.empty())
        return added == 0 ? tr("The handles change %1 nodes together.").arg(m_others.size() + 1)
                          : tr("The handles change %1 parts together; dragging puts a Transform above %2 "
                               "of them.")
                                .arg(m_others.size() + 1)
                                .arg(added);
    if (added > 0)
        return tr("Dragging a handle puts a Transform above “%1”.").arg(part);
    if (m_main.subject.node.getTail() != m_main.subject.part.getTail())
        return tr("The handles change “%1”, which moves “%2”.").arg(node, part);
    return {};
}

std::vector<std::shared_ptr<AddedTransform>> HandleTool::getAdded() const
{
    std::vector<std::shared_ptr<AddedTransform>> added;
    for (const Moved& each : m_others) {
        if (each.added)
            added.push_back(each.added);
    }
    if (m_main.added)
        added.push_back(m_main.added);
    return added;
}

bool HandleTool::begin(HandlePart part, Held held, const QPointF& place)
{
    refresh();
    if (!m_main.target || !m_main.target->can(m_mode))
        return false;
    m_held = held;
    m_pressed = place;
    m_place = place;
    m_typed.clear();
    beginDrags(part);
    m_view.repaintTools();
    return true;
}

// The others join where they can be changed in the same way.
void HandleTool::beginDrags(HandlePart part)
{
    const auto drag = [this](Moved& each, HandlePart along) {
        each.drag = std::make_unique<HandleDrag>(*each.target, m_mode, along, m_ofWorld, m_view.getSight(),
                                                 m_pressed);
    };
    drag(m_main, part);
    const HandlePart used = m_main.drag->getPart();
    for (Moved& each : m_others) {
        each.drag.reset();
        if (usablePart(*each.target, m_mode, used) == used)
            drag(each, used);
    }
    m_amounts = {m_main.drag->getNothing(), m_main.drag->getNothing()};
}

void HandleTool::apply(const HandleDrag::Amounts& amounts)
{
    m_edit.write([&] {
        m_main.drag->apply(amounts);
        for (const Moved& each : m_others) {
            if (each.drag)
                each.drag->apply(amounts);
        }
    });
}

// The same drag along something else.
void HandleTool::constrain(HandlePart part)
{
    if (m_edit.isActive())
        apply({m_main.drag->getNothing(), m_main.drag->getNothing()});
    beginDrags(part);
    if (!m_typed.isEmpty())
        show(typedAmounts());
    else if (m_held == Held::Mouse)
        followMouse(m_place, m_snaps);
    m_view.repaintTools();
}

void HandleTool::beginEdit()
{
    const auto add = [this](const Moved& each) {
        if (each.added)
            m_edit.add(each.added);
        else
            m_edit.add(each.target->getNode(), each.target->getFields(m_mode));
    };
    std::for_each(m_others.begin(), m_others.end(), add);
    add(m_main);
    const auto added = getAdded();
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
    for (SoPath path : m_selected) {
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
        show(m_main.drag->getAmounts(place, snaps));
}

void HandleTool::keep()
{
    if (!isDragging())
        return;
    const auto added = m_edit.isActive() ? getAdded() : std::vector<std::shared_ptr<AddedTransform>>();
    const QString part = nodeText(*m_main.subject.part.getTail());
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
    const auto added = m_edit.isActive() ? getAdded() : std::vector<std::shared_ptr<AddedTransform>>();
    m_edit.giveBack();
    if (!added.empty())
        selectParts(added);
    end();
}

void HandleTool::end()
{
    m_main.drag.reset();
    for (Moved& each : m_others)
        each.drag.reset();
    m_typed.clear();
    m_isStale = true;
    m_view.redraw();
}

QString HandleTool::stepName() const
{
    const QString name =
        m_others.empty() ? nodeText(*m_main.subject.part.getTail()) : tr("%1 nodes").arg(m_others.size() + 1);
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
    if (m_isPressed || (m_main.drag && m_held == Held::Mouse))
        return true;
    if (m_main.drag) // by keys; a press anywhere is Enter, or with another button Escape
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
    if (m_main.drag && m_held == Held::Mouse) {
        followMouse(m_place, m_snaps);
        return true;
    }
    if (m_isPressed)
        return true;
    const HandlePart before = m_hovered;
    m_hovered =
        event.buttons() == Qt::NoButton && !m_main.drag ? getShape().partAt(m_place) : HandlePart::None;
    if (m_hovered != before)
        m_view.repaintTools();
    return m_hovered != HandlePart::None;
}

bool HandleTool::mouseReleased(QMouseEvent& event)
{
    if (!m_isPressed || event.button() != Qt::LeftButton)
        return m_isPressed;
    m_isPressed = false;
    if (m_main.drag && m_held == Held::Mouse)
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
    if (m_main.drag && m_held == Held::Keys)
        giveBack();
}

bool HandleTool::isIdleKey(const QKeyEvent& event) const
{
    return m_mode != HandleMode::Select && isPlain(event) &&
           partOfKey(event.key(), false) != HandlePart::None;
}

bool HandleTool::wantsKey(const QKeyEvent& event)
{
    if (!m_main.drag)
        return isIdleKey(event) && (getTarget() || !m_refusal.isEmpty());
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
    if (!m_main.drag && !getTarget()) {
        emit said(m_refusal);
        return true;
    }
    if (!m_main.drag)
        return begin(part, Held::Keys, getShape().getCenter());
    if (part != HandlePart::None) {
        // The same axis once more: of the world, of what is moved.
        if (usablePart(*m_main.target, m_mode, part) == m_main.drag->getPart())
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
        nudge(-step, m_main.drag->getCount() - 1);
        break;
    case Qt::Key_Up:
        nudge(step, m_main.drag->getCount() - 1);
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
    const double step = std::abs(steps) * m_main.drag->getStep();
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
    HandleDrag::Amounts amounts{m_main.drag->getNothing(), m_main.drag->getNothing()};
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
    shape.paint(painter, m_main.drag ? m_main.drag->getPart() : m_hovered, m_main.drag != nullptr);
    if (!m_main.drag)
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
    const int axis = axisOf(m_main.drag->getPart());
    if (isAcross(m_main.drag->getPart()))
        words << QLatin1String(names[(axis + 1) % 3]) + QLatin1String(names[(axis + 2) % 3]);
    else if (axis >= 0)
        words << QLatin1String(names[axis]);
    if (!m_typed.isEmpty()) {
        words << m_typed + QChar(0x2502);
    } else {
        for (int i = 0; i < m_main.drag->getCount(); ++i) {
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
    if (m_main.drag && m_held == Held::Mouse)
        return QCursor(Qt::ClosedHandCursor);
    if (m_hovered != HandlePart::None)
        return QCursor(Qt::OpenHandCursor);
    return std::nullopt;
}

} // namespace scopix
