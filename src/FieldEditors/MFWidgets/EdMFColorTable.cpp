// SPDX-License-Identifier: MIT
#include "EdMFColorTable.h"

#include "EdColor.h"
#include "EdMFColorTableItemDelegate.h"
#include "EdMFieldWidget.h"

#include <scopix/editing/SpxText.h>

#include <QColorDialog>
#include <QPointer>

EdMFColorTable::EdMFColorTable(EdMFieldWidget* owner, QWidget* parent, const char* name)
    : EdMFieldTable(owner, parent, name)
{
    installDelegate(new EdMFColorTableItemDelegate(owner, this));
    setCellType(CELL_FLOAT);
    setDoubleEditorRange(0.0, 1.0);
    connect(this, &QTableWidget::cellClicked, this, &EdMFColorTable::getColorFromEditor);
}

void EdMFColorTable::getColorFromEditor(int row, int col)
{
    if (col != 0 || !owner()->hasRow(row))
        return;
    // The table's columns stand for components here, so the dialog starts one component further on
    // (decisions.md: color-dialog-shift).
    const auto channel = [&](int column) {
        return colorChannel(SpxText::toFloatOr0(owner()->getFieldValue(row, column)));
    };
    const QPointer<EdMFColorTable> alive(this);
    const SoMField* field = owner()->editedField();
    const QColor color =
        QColorDialog::getColor(QColor(channel(1), channel(2), channel(3)), this, tr("color dialog"));
    // Another field may be shown by now, or none.
    if (!alive || !color.isValid() || owner()->editedField() != field || !owner()->hasRow(row))
        return;
    const float rgb[3] = {float(color.red()) / 255.F, float(color.green()) / 255.F,
                          float(color.blue()) / 255.F};
    owner()->setValue(row, rgb);
}
