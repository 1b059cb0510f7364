// SPDX-License-Identifier: MIT
#include "EdTablePopupWidget.h"

#include "AccessButtonPrivate.h"
#include "EdFieldFrame.h"
#include "EdFontFitting.h"
#include "EdGridValidator.h"
#include "EdMFieldTable.h"
#include "EdPopupFrame.h"
#include "EdTablePopupLineEdit.h"
#include "EditorIcons.h"
#include "FieldEditorSettings.h"

#include <scopix/editing/SpxText.h>

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace
{

// Right after the access box and the spacer behind it.
constexpr int EditButtonPosition = 4;

} // namespace

EdTablePopupWidget::EdTablePopupWidget(int rows, int columns, const char* name)
    : EdMFieldWidget(name)
    , m_rows(rows)
    , m_columns(columns)
{
    if (!name)
        setObjectName(QStringLiteral("EdTablePopupWidget"));
}

void EdTablePopupWidget::load()
{
    EdMFieldWidget::load();
    m_editButton = EdFieldFrame(getWidgetContainer())
                       .newButton("m_editButton", fieldEditor::icon(fieldEditor::Icon::Edit));
    EdFieldFrame::name(m_editButton, tr("Edit the element in a grid"));
    buttonsLayout()->insertWidget(EditButtonPosition, m_editButton);
    // The button takes its width from the space before it; less than none would lay it over the access box.
    const int space = xsgsettings_fieldEditor(QStringLiteral("MFAccessMoveSpacerWidth")) -
                      xsgsettings_fieldEditor(QStringLiteral("buttonWidth"));
    accessMoveSpacer()->changeSize(std::max(space, 0),
                                   xsgsettings_fieldEditor(QStringLiteral("MFAccessMoveSpacerHeight")),
                                   QSizePolicy::Expanding);
    buttonsLayout()->invalidate();
    table()->setEnabled(false);
    buildPopup();
    accessBox()->installEventFilter(this);
    initColumns({}, 1);
    connect(m_editButton, &QPushButton::clicked, this, &EdTablePopupWidget::setEditFrame);
}

void EdTablePopupWidget::buildPopup()
{
    m_popup = new EdPopupFrame(getWidgetContainer());
    addWindow(m_popup);
    m_popup->setFrameStyle(int(QFrame::WinPanel) | int(QFrame::Raised));
    m_popup->setFrameShape(QFrame::StyledPanel);
    m_popup->setFrameShadow(QFrame::Raised);
    m_popup->resize(xsgsettings_fieldEditor(QStringLiteral("PopupFrameWidth")),
                    xsgsettings_fieldEditor(QStringLiteral("PopupFrameHeight")));
    m_popupFrameLayout = new QGridLayout(m_popup);
    m_popupFrameLayout->setObjectName(QStringLiteral("m_popupFrameLayout"));
    const int margin = xsgsettings_fieldEditor(QStringLiteral("PopupLayoutMargin"));
    m_popupFrameLayout->setContentsMargins(margin, margin, margin, margin);
    m_popupFrameLayout->setSpacing(xsgsettings_fieldEditor(QStringLiteral("PopupLayoutSpacing")));
    m_lines.resize(m_rows * m_columns);
    // Numbered down the columns, so that the grid shows the element transposed (decisions.md: popup-columns).
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            const int index = m_columns * column + row;
            auto* line = new EdTablePopupLineEdit(index, this, m_popup, "lineEdit");
            line->setAccessibleName(tr("Row %1, column %2").arg(row + 1).arg(column + 1));
            setRoomFor(line, "-2.34567e-08");
            m_popupFrameLayout->addWidget(line, row, column);
            connect(line, SIGNAL(textChanged(const QString&)), line, SLOT(setCurrentValue(const QString&)));
            m_lines[index] = line;
        }
    }
}

void EdTablePopupWidget::setValidator(int kind)
{
    for (EdTablePopupLineEdit* line : qAsConst(m_lines))
        setGridValidator(*line, kind);
}

QString EdTablePopupWidget::getPopupValue(int /*row*/, int /*index*/)
{
    return {};
}

int EdTablePopupWidget::rowToEdit() const
{
    return accessBox()->value() - 1;
}

void EdTablePopupWidget::updatePopupLines(int row)
{
    const int element = row == -1 ? rowToEdit() : row;
    // All are read before the first is shown, since showing one writes the element.
    QVector<QString> texts;
    for (const EdTablePopupLineEdit* line : qAsConst(m_lines))
        texts.append(getPopupValue(element, line->index()));
    for (int i = 0; i < m_lines.size(); ++i)
        m_lines[i]->showText(texts[i]);
}

void EdTablePopupWidget::setEditFrame()
{
    if (!hasRow(rowToEdit()))
        return;
    updatePopupLines(-1);
    managePopFramePos();
}

void EdTablePopupWidget::managePopFramePos()
{
    // Beside the editor's frame: at its left where the screen has no room at its right.
    const QWidget* container = getWidgetContainer();
    const QRect frame(container->mapToGlobal(QPoint(0, 0)), container->size());
    const QRect desktop = EdPopupFrame::screenOf(frame, *container);
    m_popupFrameLayout->activate();
    m_popup->resize(m_popup->size().expandedTo(m_popupFrameLayout->totalMinimumSize()));
    const int right = frame.right() + 1;
    const bool fits = right + m_popup->width() <= desktop.right();
    m_popup->move(fits ? right : std::max(desktop.left(), frame.left() - m_popup->width()),
                  std::max(desktop.top(), std::min(frame.top(), desktop.bottom() - m_popup->height())));
    revertCursorPosition();
    m_popup->show();
    EdTablePopupLineEdit* first = m_lines.first();
    first->setFocus();
    first->selectAll();
}

bool EdTablePopupWidget::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOpening =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2;
    if (isOpening)
        setEditFrame();
    return isOpening || EdMFieldWidget::eventFilter(watched, event);
}

void EdTablePopupWidget::setField(SoField* field)
{
    if (m_popup)
        m_popup->hide();
    EdMFieldWidget::setField(field);
}

void EdTablePopupWidget::revertCursorPosition()
{
    for (EdTablePopupLineEdit* line : qAsConst(m_lines))
        line->setCursorPosition(0);
}

void EdTablePopupWidget::refresh()
{
    EdMFieldWidget::refresh();
    if (!m_popup || !m_popup->isVisible())
        return;
    if (!hasRow(rowToEdit())) {
        m_popup->hide();
        return;
    }
    // A change from elsewhere is shown; what already shows the value, or was just typed, stays as it is.
    for (EdTablePopupLineEdit* line : qAsConst(m_lines)) {
        const QString text = getPopupValue(rowToEdit(), line->index());
        const bool isHalfTyped = line->hasFocus() && !line->isNumber();
        if (isHalfTyped || SpxText::toFloatOr0(line->text()) == SpxText::toFloatOr0(text))
            continue;
        const QSignalBlocker quiet(line);
        line->showText(text);
    }
}
