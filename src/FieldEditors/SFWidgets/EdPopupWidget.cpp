// SPDX-License-Identifier: MIT
#include "EdPopupWidget.h"

#include "EdFieldEdits.h"
#include "EdFontFitting.h"
#include "EdGridValidator.h"
#include "EdPopupFrame.h"
#include "EditorIcons.h"
#include "FieldEditorSettings.h"

#include <xsg/core/SoSField.h>

#include <QFrame>
#include <QGridLayout>
#include <QPushButton>

EdPopupWidget::EdPopupWidget(int rows, int columns, const char* name)
    : EdSFLineWidget(name)
    , m_rows(rows)
    , m_columns(columns)
{
    setObjectName(QLatin1String(name ? name : "EdPopupWidget"));
}

void EdPopupWidget::load()
{
    EdSFLineWidget::load();
    m_cells.clear();
    buildButton();
    buildPopup();
}

void EdPopupWidget::buildButton()
{
    m_editButton = new QPushButton(editionFrame());
    m_editButton->setObjectName(QStringLiteral("m_editButton"));
    m_editButton->setFixedSize(xsgsettings_fieldEditor(QStringLiteral("buttonWidth")),
                               xsgsettings_fieldEditor(QStringLiteral("buttonHeight")));
    m_editButton->setIcon(fieldEditor::icon(fieldEditor::Icon::Edit));
    m_editButton->setToolTip(tr("Edit each number"));
    m_editButton->setAccessibleName(tr("Edit each number"));
    editLayout()->addWidget(m_editButton);
    connect(m_editButton, &QPushButton::clicked, this, &EdPopupWidget::managePopFramePos);
}

void EdPopupWidget::buildPopup()
{
    m_popup = new EdPopupFrame(getWidgetContainer());
    m_popup->setAttribute(Qt::WA_NoMouseReplay); // the click that closes it must not open it again
    m_popup->setFrameStyle(int(QFrame::Panel) | int(QFrame::Raised));
    m_popup->setFrameShape(QFrame::StyledPanel);
    m_popup->setFrameShadow(QFrame::Raised);
    addWindow(m_popup);
    m_popupFrameLayout = new QGridLayout(m_popup);
    m_popupFrameLayout->setObjectName(QStringLiteral("m_popupFrameLayout"));
    const int margin = xsgsettings_fieldEditor(QStringLiteral("PopupLayoutMargin"));
    m_popupFrameLayout->setContentsMargins(margin, margin, margin, margin);
    m_popupFrameLayout->setSpacing(xsgsettings_fieldEditor(QStringLiteral("PopupLayoutSpacing")));
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column)
            m_popupFrameLayout->addWidget(buildCell(row, column), row, column);
    }
}

EdLineEdit* EdPopupWidget::buildCell(int row, int column)
{
    auto* cell = new EdLineEdit(m_popup);
    cell->setAccessibleName(tr("Row %1, column %2").arg(row + 1).arg(column + 1));
    cell->setMinimumWidth(1);
    followFont(cell, [cell] {
        constexpr int InputFrame = 4;
        cell->setMinimumHeight(cell->fontMetrics().height() + InputFrame);
    });
    connect(cell, &QLineEdit::editingFinished, this, &EdPopupWidget::setFocusLeaveEvent);
    connect(cell, &QLineEdit::returnPressed, this, qOverload<>(&EdPopupWidget::applyChanges));
    m_cells.add(cell);
    return cell;
}

void EdPopupWidget::setValidator(int kind)
{
    for (EdLineEdit* cell : m_cells.all()) {
        setGridValidator(*cell, kind);
        setRoomFor(cell, isRealGrid(kind) ? "-2.34567e-08" : "-32768");
    }
    fitPopup();
}

void EdPopupWidget::fitPopup()
{
    const QSize stated(xsgsettings_fieldEditor(QStringLiteral("PopupFrameWidth")),
                       xsgsettings_fieldEditor(QStringLiteral("PopupFrameHeight")));
    m_popupFrameLayout->activate();
    m_popup->setFixedSize(stated.expandedTo(m_popupFrameLayout->totalMinimumSize()));
}

void EdPopupWidget::managePopFramePos()
{
    if (m_popup->isVisible()) {
        m_popup->hide();
        return;
    }
    const QRect button(m_editButton->mapToGlobal(QPoint(0, 0)), m_editButton->size());
    fitPopup();
    m_popup->move(
        EdPopupFrame::placeBeside(button, m_popup->size(), EdPopupFrame::screenOf(button, *m_editButton)));
    refresh();
    m_popup->show();
    m_cells.at(0)->setFocus();
}

void EdPopupWidget::refresh()
{
    const QStringList texts = cellTexts();
    if (!texts.isEmpty())
        m_cells.show(texts);
    EdSFLineWidget::refresh();
}

void EdPopupWidget::applyChanges()
{
    if (cellTexts().isEmpty() || !m_cells.takeTyping())
        return;
    EdFieldEdits::write(getSField(), [this] { writeCells(m_cells); });
}

bool EdPopupWidget::edited()
{
    return m_cells.isEdited();
}
