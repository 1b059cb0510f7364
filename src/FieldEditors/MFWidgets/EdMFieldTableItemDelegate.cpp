// SPDX-License-Identifier: MIT
#include "EdMFieldTableItemDelegate.h"

#include "EdGridValidator.h"
#include "EdIntSlider.h"
#include "EdLineEdit.h"
#include "EdMFieldTable.h"
#include "EdMFieldWidget.h"
#include "EdRealSlider.h"
#include "EdUIntSlider.h"
#include "EdValidators.h"
#include "QULongValidator.h"

#include <scopix/editing/SpxText.h>

#include <QKeyEvent>
#include <QPainter>
#include <QTextBoundaryFinder>

namespace
{

constexpr int TextMargin = 4;
constexpr int AnyReal = 4; // the grid validator of all doubles
constexpr int ShortestMeasured = 64;

// No cell shows more characters than it has pixels: measuring a text of megabytes for each repaint would cost
// what cannot be seen.
int longestShown(int width)
{
    return std::max(width, ShortestMeasured);
}

// Keeps characters from the start while "..." and they stay narrower than the width; at least one.
QString shortened(const QString& text, const QFontMetrics& metrics, int width)
{
    const QString dots = QStringLiteral("...");
    int kept = 0;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    int next = characters.toNextBoundary();
    const int first = std::max(next, 0);
    while (next > kept && metrics.horizontalAdvance(dots + text.left(next)) < width) {
        kept = next;
        next = characters.toNextBoundary();
    }
    return text.left(std::max(kept, first)) + dots;
}

// A cell is one line high: what begins a new line is drawn as a blank.
QString inOneLine(QString text)
{
    for (QChar& character : text) {
        if (character.isSpace())
            character = QLatin1Char(' ');
    }
    return text;
}

// For those who do not see where the cell is: "Element 2, x".
QString nameOf(const QModelIndex& index)
{
    const QString element = EdMFieldTable::tr("Element %1").arg(index.row() + 1);
    if (index.model()->columnCount() == 1)
        return element;
    return element + QStringLiteral(", ") +
           index.model()->headerData(index.column(), Qt::Horizontal).toString();
}

EdLineEdit* lineOf(QWidget* editor)
{
    QWidget* proxy = editor->focusProxy();
    return qobject_cast<EdLineEdit*>(proxy ? proxy : editor);
}

bool hasSlider(int cellType)
{
    // Not for doubles, though they are numbers too (decisions.md: no-double-slider).
    return cellType == EdMFieldTable::CELL_SHORT || cellType == EdMFieldTable::CELL_USHORT ||
           cellType == EdMFieldTable::CELL_INT32 || cellType == EdMFieldTable::CELL_UINT32 ||
           cellType == EdMFieldTable::CELL_FLOAT;
}

} // namespace

EdMFieldTableItemDelegate::EdMFieldTableItemDelegate(EdMFieldWidget* owner, QObject* parent)
    : QItemDelegate(parent)
    , m_owner(owner)
{
}

void EdMFieldTableItemDelegate::setIntEditorRange(int minimum, int maximum)
{
    m_intMinimum = minimum;
    m_intMaximum = maximum;
}

void EdMFieldTableItemDelegate::setDoubleEditorRange(double minimum, double maximum)
{
    m_doubleMinimum = minimum;
    m_doubleMaximum = maximum;
}

void EdMFieldTableItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    painter->save();
    const bool selected = option.state & QStyle::State_Selected;
    if (selected)
        painter->fillRect(option.rect, option.palette.highlight());
    const int width = option.rect.width() - TextMargin;
    QString text =
        inOneLine(m_owner->getCellText(index.row(), componentOf(index.column()), longestShown(width)));
    const QFontMetrics metrics = painter->fontMetrics();
    if (metrics.horizontalAdvance(text) > width)
        text = shortened(text, metrics, width);
    const bool enabled = option.state & QStyle::State_Enabled;
    painter->setPen(option.palette.color(enabled ? QPalette::Normal : QPalette::Disabled,
                                         selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(option.rect, Qt::AlignCenter, text);
    painter->restore();
}

QWidget* EdMFieldTableItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                                 const QModelIndex& index) const
{
    if (!m_owner->hasRow(index.row()))
        return nullptr;
    const QString text = m_owner->getFieldValue(index.row(), componentOf(index.column()));
    const bool single = index.column() == 0 && index.model()->columnCount() == 1;
    QWidget* editor = nullptr;
    if (single && hasSlider(m_cellType))
        editor = createSlider(parent, index.row(), text);
    else
        editor = createLineEdit(parent, text);
    editor->setAutoFillBackground(true); // the cell's own text does not show through
    editor->setFocusPolicy(Qt::WheelFocus);
    editor->setAccessibleName(nameOf(index));
    return editor;
}

EdLineEdit* EdMFieldTableItemDelegate::createLineEdit(QWidget* parent, const QString& text) const
{
    auto* edit = new EdLineEdit(parent);
    edit->setObjectName(QStringLiteral("qt_lineeditor"));
    edit->setFrame(false);
    edit->setEscapePassed(true);
    edit->showText(text);
    setValidator(edit);
    return edit;
}

EdSlider* EdMFieldTableItemDelegate::createSlider(QWidget* parent, int row, const QString& text) const
{
    if (m_cellType == EdMFieldTable::CELL_FLOAT) {
        // The row is passed as the precision, and the slider always edits row 0, column 1, so what is applied
        // from it reaches element 0 (decisions.md: slider-first-element).
        auto* slider = new EdRealSlider(MultiValueParent, m_owner, parent, row != 0, 0, 1);
        slider->limitToFloat();
        slider->setValidLimits(m_doubleMinimum, m_doubleMaximum, m_bounded);
        slider->setRealValue(double(SpxText::toFloatOr0(text)));
        return slider;
    }
    const bool isShort = m_cellType == EdMFieldTable::CELL_SHORT || m_cellType == EdMFieldTable::CELL_USHORT;
    if (m_cellType == EdMFieldTable::CELL_SHORT || m_cellType == EdMFieldTable::CELL_INT32) {
        auto* slider =
            new EdIntSlider(isShort ? Int16Slider : Int32Slider, MultiValueParent, m_owner, parent, row, 0);
        slider->setValidLimits(m_intMinimum, m_intMaximum, m_bounded);
        slider->setValue(text);
        return slider;
    }
    auto* slider =
        new EdUIntSlider(isShort ? UInt16Slider : UInt32Slider, MultiValueParent, m_owner, parent, row, 0);
    slider->setValidLimits(unsigned(m_intMinimum), unsigned(m_intMaximum), m_bounded);
    slider->setValue(text);
    return slider;
}

void EdMFieldTableItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString text = m_owner->getFieldValue(index.row(), componentOf(index.column()));
    EdLineEdit* line = lineOf(editor);
    if (!line || isTyped(editor))
        return;
    const bool isSelected = line->hasSelectedText() && line->selectedText() == line->text();
    if (auto* real = qobject_cast<EdRealSlider*>(editor))
        real->setRealValue(double(SpxText::toFloatOr0(text)));
    else if (auto* slider = qobject_cast<EdSlider*>(editor))
        slider->setValue(text);
    else
        line->showText(text);
    // A text that is selected whole, as it is in a cell just opened, is so afterwards.
    if (isSelected)
        line->selectAll();
}

void EdMFieldTableItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                             const QModelIndex& index) const
{
    // The view itself manages the editor being committed; only a widget of another origin is removed.
    auto* table = static_cast<EdMFieldTable*>(parent());
    if (table->cellWidget(index.row(), index.column()) != editor)
        table->removeCellWidget(index.row(), index.column());
    if (auto* edit = qobject_cast<EdLineEdit*>(editor)) {
        commit(edit, model, index);
        return;
    }
    if (auto* slider = qobject_cast<EdSlider*>(editor))
        slider->changeValueFromEdit();
    QItemDelegate::setModelData(editor, model, index);
}

QString EdMFieldTableItemDelegate::textOf(const QModelIndex& index) const
{
    return m_owner->getFieldValue(index.row(), componentOf(index.column()));
}

bool EdMFieldTableItemDelegate::isTyped(const QWidget* editor)
{
    if (const auto* edit = qobject_cast<const EdLineEdit*>(editor))
        return edit->isModified() && edit->isChanged();
    const auto* slider = qobject_cast<const EdSlider*>(editor);
    return slider && slider->isEdited();
}

void EdMFieldTableItemDelegate::commit(EdLineEdit* edit, QAbstractItemModel* model,
                                       const QModelIndex& index) const
{
    // The text of a number that ends as it was shown stands for the value, of which it may say less.
    const bool isNew = edit->isChanged() || m_cellType == EdMFieldTable::CELL_NONE;
    if (!edit->isModified() || !isNew || !m_owner->hasRow(index.row()))
        return;
    QString text = edit->text();
    int position = 0;
    if (edit->validator() && edit->validator()->validate(text, position) != QValidator::Acceptable)
        return;
    edit->setModified(false);
    m_owner->set1Value(index.row(), componentOf(index.column()), text);
    model->setData(index, text, Qt::DisplayRole);
}

bool EdMFieldTableItemDelegate::eventFilter(QObject* watched, QEvent* event)
{
    auto* editor = qobject_cast<QWidget*>(watched);
    const bool isHandled =
        editor && event->type() == QEvent::KeyPress && handleTab(editor, *static_cast<QKeyEvent*>(event));
    return isHandled || QItemDelegate::eventFilter(watched, event);
}

bool EdMFieldTableItemDelegate::handleTab(QWidget* editor, const QKeyEvent& event)
{
    const bool isNext = event.key() == Qt::Key_Tab;
    if (!isNext && event.key() != Qt::Key_Backtab)
        return false;
    auto* table = static_cast<EdMFieldTable*>(parent());
    if (event.modifiers() & Qt::ControlModifier) {
        table->finishOpenEditor();
        return table->leaveByTab(isNext);
    }
    const auto* edit = qobject_cast<EdLineEdit*>(editor);
    if (!edit || edit->hasAcceptableInput())
        return false;
    // An unacceptable text does not keep the user from moving on to the next cell.
    emit closeEditor(editor, isNext ? EditNextItem : EditPreviousItem);
    return true;
}

void EdMFieldTableItemDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                                     const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect);
}

void EdMFieldTableItemDelegate::setValidator(QLineEdit* edit) const
{
    switch (m_cellType) {
    case EdMFieldTable::CELL_SHORT:
        // -32767 and not -32768 (decisions.md: short-bottom).
        edit->setValidator(new EdIntValidator(-32767, 32767, edit));
        break;
    case EdMFieldTable::CELL_USHORT:
        edit->setValidator(new EdIntValidator(0, 65535, edit));
        break;
    case EdMFieldTable::CELL_INT:
        edit->setValidator(new EdIntValidator(edit));
        break;
    case EdMFieldTable::CELL_UINT:
        edit->setValidator(new QUIntValidator(edit));
        break;
    case EdMFieldTable::CELL_INT32:
        // Bottom above top, so nothing is ever acceptable (decisions.md: int32-cells).
        edit->setValidator(new EdIntValidator(1, -1, edit));
        break;
    case EdMFieldTable::CELL_UINT32:
        edit->setValidator(new QULongValidator(edit));
        break;
    case EdMFieldTable::CELL_FLOAT:
        edit->setValidator(EdRealValidator::forFloat(edit));
        break;
    case EdMFieldTable::CELL_DOUBLE:
        setGridValidator(*edit, AnyReal);
        break;
    default:
        break;
    }
}
