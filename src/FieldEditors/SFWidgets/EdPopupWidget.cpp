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
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>

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
    m_popup->setFixedSize(xsgsettings_fieldEditor(QStringLiteral("PopupFrameWidth")),
                          xsgsettings_fieldEditor(QStringLiteral("PopupFrameHeight")));
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
    constexpr int InputFrame = 4;
    cell->setMinimumSize(1, cell->fontMetrics().height() + InputFrame);
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
    m_popup->setFixedSize(m_popup->size().expandedTo(m_popupFrameLayout->totalMinimumSize()));
}

void EdPopupWidget::managePopFramePos()
{
    if (m_popup->isVisible()) {
        m_popup->hide();
        return;
    }
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    const QWidget* container = getWidgetContainer();
    QPoint at = container->mapToGlobal(m_editButton->mapTo(container, m_editButton->rect().bottomRight()));
    if (desktop.width() - m_popup->width() - m_editButton->width() < at.x())
        at.rx() -= m_popup->width() + m_editButton->width();
    if (desktop.height() - m_editButton->height() - m_popup->height() < at.y())
        at.ry() -= m_popup->height() + m_editButton->height();
    m_popup->move(at);
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
