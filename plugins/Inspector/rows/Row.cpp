// SPDX-License-Identifier: MIT
#include "rows/Row.h"

#include "fields/FieldText.h"
#include "fields/PastedText.h"
#include "fields/ToolTip.h"
#include "rows/Caption.h"
#include "rows/ConnectDialog.h"
#include "rows/CutText.h"
#include "rows/Mark.h"
#include "rows/NumberEdit.h"
#include "rows/RowMenu.h"

#include <scopix/editing/SpxFieldEdit.h>
#include <scopix/editing/SpxFreshDefault.h>
#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/nodes/animation/SoAnimatedValues.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDateTime>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <chrono>
#include <utility>

namespace inspector
{

namespace
{

constexpr int Gap = 4;
constexpr int AnimatedAfter = 5; // changes from elsewhere
constexpr int SoonAfterMs = 500;
constexpr double CaptionShare = 0.38;
constexpr double NarrowCaptionShare = 0.5;
constexpr int NarrowInCharacters = 42;
constexpr int RestCharacters = 40;

qint64 steadyMs()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

// What an animated field holds while nothing is animated.
QString restText(const SoField& field)
{
    const QString text = SpxText::ofField(SoAnimatedValues::getInstance().getRest(field));
    return text.size() > RestCharacters ? text.left(RestCharacters) + QStringLiteral("…") : text;
}

} // namespace

Row::Row(SoField* field)
    : m_field(field)
    , m_description(SpxFieldDescription::find(*field))
{
}

void Row::start()
{
    buildFrame();
    build();
    m_caption->setDragged(draggedByCaption());
    refresh();
}

void Row::buildFrame()
{
    setObjectName(QStringLiteral("row"));
    setAccessibleName(fieldName() + QStringLiteral(", ") + typeText());
    m_meaning = spokenMeaningOf(*field(), m_description);
    setAccessibleDescription(m_meaning);
    m_mark = new Mark(this);
    m_mark->setAccessibleName(tr("State of %1").arg(fieldName()));
    connect(m_mark, &QToolButton::clicked, this,
            [this] { showMenu(m_mark->mapToGlobal(m_mark->rect().bottomLeft())); });
    m_caption = new Caption(fieldName(), this);
    connect(m_caption, &Caption::clicked, this, [this] {
        if (!m_inputs.isEmpty())
            m_inputs.first()->setFocus(Qt::MouseFocusReason);
        emit chosen();
    });
    m_editor = new QWidget(this);
}

QBoxLayout* Row::editorLayout()
{
    if (!m_editor->layout()) {
        auto* layout = new QHBoxLayout(m_editor);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(Gap - 1);
    }
    return static_cast<QBoxLayout*>(m_editor->layout());
}

void Row::addInput(QWidget* input, const QString& part)
{
    input->setAccessibleName(part.isEmpty() ? fieldName() : fieldName() + QLatin1Char(' ') + part);
    input->setAccessibleDescription(m_meaning);
    input->installEventFilter(this);
    m_inputs += input;
}

QList<QWidget*> Row::inputs() const
{
    QList<QWidget*> reachable;
    for (QWidget* input : m_inputs) {
        if (input->isVisibleTo(this) && input->isEnabled())
            reachable += input;
    }
    if (m_take && m_take->isVisibleTo(this))
        reachable += m_take;
    return reachable;
}

void Row::setStacked(bool stacked)
{
    if (std::exchange(m_isStacked, stacked) != stacked)
        placeParts();
}

void Row::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeParts();
}

void Row::placeParts()
{
    const int line = m_isStacked ? fontMetrics().height() + Gap : height();
    const int firstLine = m_isStacked ? line : std::min(height(), fontMetrics().height() + 2 * Gap + 2);
    const int mark = fontMetrics().height();
    const int left = mark + Gap;
    const bool isNarrow = width() < fontMetrics().averageCharWidth() * NarrowInCharacters;
    const double share = isNarrow ? NarrowCaptionShare : CaptionShare;
    const int captionWidth = m_isStacked ? width() - left : int(width() * share) - left;
    QWidget* extra = besideCaption();
    const int extraWidth = extra ? extra->sizeHint().width() : 0;
    const int right = left + captionWidth + Gap;
    m_mark->setGeometry(0, 0, mark, firstLine);
    m_caption->setGeometry(left, 0, std::max(0, captionWidth - (m_isStacked ? extraWidth : 0)), firstLine);
    if (extra)
        extra->setGeometry(m_isStacked ? width() - extraWidth : right, 0, extraWidth,
                           m_isStacked ? line : height());
    // Room for the offer as long as one is compared, so that nothing moves when a value becomes equal.
    const int offer = m_take && m_compared ? mark + 2 * Gap : 0;
    if (m_isStacked)
        m_editor->setGeometry(left, line, width() - left - offer, height() - line);
    else
        m_editor->setGeometry(right + extraWidth, 0, width() - right - extraWidth - offer, height());
    if (m_take)
        m_take->setGeometry(width() - offer, m_isStacked ? line : 0, offer, mark + 2 * Gap);
}

QString Row::fieldName() const
{
    return field() ? SpxText::toQString(field()->getName()) : QString();
}

QString Row::typeText() const
{
    return SpxText::toQString(field()->getTypeId().getName());
}

QString Row::searchText() const
{
    return field()
               ? fieldName() + QStringLiteral(", ") + typeText() + QStringLiteral(": ") + summary(*field())
               : QString();
}

QString Row::toolTipText() const
{
    return toolTipOf(*field(), m_description);
}

std::vector<SoField*> Row::fields() const
{
    std::vector<SoField*> all;
    if (field())
        all.push_back(field());
    for (const SpxFieldPointer& other : m_others) {
        if (other && other.get() != field())
            all.push_back(other.get());
    }
    return all;
}

bool Row::isMixed() const
{
    return std::any_of(m_others.begin(), m_others.end(), [this](const SpxFieldPointer& other) {
        return other && field() && !other->isSame(*field());
    });
}

bool Row::isAny(bool (SoField::*is)() const) const
{
    const std::vector<SoField*> all = fields();
    return std::any_of(all.begin(), all.end(), [is](const SoField* each) { return (each->*is)(); });
}

bool Row::areAllDefault() const
{
    const std::vector<SoField*> all = fields();
    return std::all_of(all.begin(), all.end(), [](const SoField* each) { return each->isDefault(); });
}

// Of all together: it differs after a change of any.
quint32 Row::changeCount() const
{
    quint32 sum = 0;
    for (const SoField* each : fields()) {
        each->evaluate();
        sum += each->getChangeCount();
    }
    return m_compared ? sum + m_compared->getChangeCount() : sum;
}

void Row::refresh()
{
    if (!field())
        return;
    const quint32 change = changeCount();
    if (!m_isShown || change != m_shownChange) {
        if (m_isShown)
            noteChange(change);
        if (isBusy() && m_isShown) {
            m_hasConflict = true;
        } else {
            m_hasConflict = false;
            showValue();
        }
        m_isShown = true;
        m_shownChange = change;
    }
    showMark();
}

// What changes again and again by itself is animated.
void Row::noteChange(quint32 /*change*/)
{
    const qint64 now = steadyMs();
    m_changesInARow = now - m_lastChange < SoonAfterMs ? m_changesInARow + 1 : 1;
    m_lastChange = now;
}

void Row::changedHere()
{
    if (!field())
        return;
    m_shownChange = changeCount();
    m_hasConflict = false;
    m_changesInARow = 0;
    showValue();
    showMark();
}

void Row::showMark()
{
    using State = Mark::State;
    const SoField* source = field()->getConnectedField();
    const bool isChanged = !areAllDefault();
    const bool isOfClip = SoAnimatedValues::getInstance().isAnimated(*field());
    const bool isAnimated = m_changesInARow >= AnimatedAfter && steadyMs() - m_lastChange < 2 * SoonAfterMs;
    if (m_hasConflict)
        m_mark->setState(State::Conflict, tr("Changed elsewhere meanwhile: take that value, or keep yours."));
    else if (source)
        m_mark->setState(State::Connected, tr("Follows %1.").arg(pathOf(*source)));
    else if (isAny(&SoField::isIgnored))
        m_mark->setState(State::Ignored, tr("Ignored: takes no part."));
    else if (isOfClip)
        m_mark->setState(State::Animated,
                         tr("Animated: %1 at rest, which is what is saved.").arg(restText(*field())));
    else if (isAnimated)
        m_mark->setState(State::Animated, tr("Changes by itself."));
    else if (isChanged)
        m_mark->setState(State::Changed, tr("Changed: not the default."));
    else
        m_mark->setState(State::Default, tr("The default."));
    m_caption->setStrong(isChanged);
    showDifference();
    m_editor->setEnabled(true);
}

void Row::compareWith(SoField* other)
{
    if (other == m_compared.get() && !m_take)
        return;
    m_compared = other;
    if (other && !m_take) {
        m_take = new QToolButton(this);
        m_take->setObjectName(QStringLiteral("takeCompared"));
        m_take->setAutoRaise(true);
        m_take->setText(QChar(0x21E6));
        m_take->setAccessibleName(tr("Take the compared value of %1").arg(fieldName()));
        m_take->setFocusPolicy(Qt::TabFocus);
        connect(m_take, &QToolButton::clicked, this, &Row::takeCompared);
    }
    m_shownChange = changeCount();
    showDifference();
}

bool Row::isDifferent() const
{
    return field() && m_compared && !m_compared->isSame(*field());
}

void Row::showDifference()
{
    if (!m_take)
        return;
    m_take->setVisible(isDifferent());
    if (isDifferent())
        m_take->setToolTip(tr("Differs: takes %1, the value of the node that it is compared with.")
                               .arg(summary(*m_compared.get())));
    placeParts();
    update();
}

void Row::takeCompared()
{
    const SpxFieldPointer compared = m_compared;
    if (compared)
        edit([&] { return field()->copyFrom(*compared.get()); });
}

void Row::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (!m_take || !isDifferent())
        return;
    constexpr int Tint = 50; // of 255: the text stays legible on it
    QColor color = palette().color(QPalette::Highlight);
    color.setAlpha(Tint);
    QPainter(this).fillRect(rect(), color);
}

void Row::takeTheirs()
{
    for (QWidget* input : qAsConst(m_inputs)) {
        if (auto* line = qobject_cast<QLineEdit*>(input))
            line->setModified(false);
    }
    m_hasConflict = false;
    showValue();
    showMark();
}

void Row::keepMine()
{
    m_hasConflict = false;
    showMark();
}

void Row::showMenu(const QPoint& where)
{
    if (!field())
        return;
    auto* menu = new QMenu(this); // the row may go while it is open
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("rowMenu"));
    addStateEntries(*menu);
    menu->addSeparator();
    addTextEntries(*menu);
    addEntriesBeyond(*menu, m_field, *this);
    menu->popup(where);
}

void Row::addStateEntries(QMenu& menu)
{
    if (m_hasConflict) {
        menu.addAction(tr("&Take the New Value"), this, &Row::takeTheirs);
        menu.addAction(tr("&Keep Mine"), this, &Row::keepMine);
        menu.addSeparator();
    }
    menu.addAction(tr("&Reset to Default"), this, &Row::reset)->setEnabled(!areAllDefault());
    QAction* ignore = menu.addAction(tr("&Ignore"));
    ignore->setCheckable(true);
    ignore->setChecked(field()->isIgnored());
    connect(ignore, &QAction::triggered, this, [this](bool ignored) {
        for (SoField* each : fields())
            SpxFieldEdit::setIgnored(each, ignored);
        changedHere();
    });
    menu.addAction(tr("C&onnect to a Field…"), this, &Row::connectField);
    QAction* disconnect = menu.addAction(tr("&Disconnect"), this, [this] {
        for (SoField* each : fields())
            SpxFieldEdit::setSource(each, nullptr);
        changedHere();
    });
    disconnect->setEnabled(isAny(&SoField::isConnected));
}

void Row::addTextEntries(QMenu& menu)
{
    const auto copy = [](const QString& text) { QApplication::clipboard()->setText(text); };
    const SpxFieldPointer edited = m_field;
    menu.addAction(tr("&Copy Value"), this, &Row::copyValue);
    menu.addAction(tr("Paste &Value"), this, &Row::pasteValue)
        ->setEnabled(!QApplication::clipboard()->text().isEmpty());
    const auto addCopy = [&](const QString& title, QString (*textOf)(const SoField&)) {
        menu.addAction(title, this, [=] {
            if (edited)
                copy(textOf(*edited.get()));
        });
    };
    addCopy(tr("Cop&y Path"), pathOf);
    addCopy(tr("Copy as C+&+"), cppText);
    addCopy(tr("Copy as &Scene Text"), sceneText);
}

void Row::connectField()
{
    if (!field())
        return;
    const QPointer<Row> self(this); // the row may go while the dialog is open
    const SpxFieldPointer edited = m_field;
    ConnectDialog dialog(*edited.get(), window());
    const bool isChosen = dialog.exec() == QDialog::Accepted && edited && dialog.chosen();
    if (!self)
        return;
    for (SoField* each : isChosen ? fields() : std::vector<SoField*>()) {
        if (each != dialog.chosen())
            SpxFieldEdit::setSource(each, dialog.chosen());
    }
    changedHere();
}

void Row::reset()
{
    if (!field())
        return;
    edit([&] {
        const SpxFreshDefault fresh(field());
        const bool isWritten = fresh.get() && field()->copyFrom(*fresh.get());
        if (isWritten)
            field()->setDefault(true);
        return isWritten;
    });
}

void Row::copyValue() const
{
    if (field())
        QApplication::clipboard()->setText(plainText(*field()));
}

void Row::pasteValue()
{
    const QString text = QApplication::clipboard()->text().trimmed();
    if (!field() || text.isEmpty())
        return;
    bool isPasted = true;
    for (SoField* each : fields())
        isPasted = pasteText(each, text) && isPasted;
    if (!isPasted)
        QToolTip::showText(
            mapToGlobal(QPoint(0, height())),
            tr("“%1” cannot be pasted: it is no value for %2.").arg(text.left(40), fieldName()), this);
    changedHere();
}

// Made when it is asked for, since it needs a fresh node; for the inputs too, which have none of their own.
bool Row::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && field())
        setToolTip(toolTipText());
    // The row's own node, which need not be the selected one.
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) {
        event->accept();
        return event->type() == QEvent::ShortcutOverride || showHelpFor(m_field);
    }
    return QWidget::event(event);
}

bool Row::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && m_inputs.contains(static_cast<QWidget*>(watched)))
        emit chosen();
    if (watched->isWidgetType() && static_cast<QWidget*>(watched)->toolTip().isEmpty() &&
        showCutText(*static_cast<QWidget*>(watched), *event))
        return true;
    // What a text's own menu offers has keys.
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
        showMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    // Scrolling past an input edits nothing.
    if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void Row::contextMenuEvent(QContextMenuEvent* event)
{
    showMenu(event->globalPos());
}

void Row::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Backspace)
        reset();
    else if (event->matches(QKeySequence::Copy))
        copyValue();
    else if (event->matches(QKeySequence::Paste))
        pasteValue();
    else
        QWidget::keyPressEvent(event);
}

} // namespace inspector
