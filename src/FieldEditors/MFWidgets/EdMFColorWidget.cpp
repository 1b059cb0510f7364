// SPDX-License-Identifier: MIT
#include "EdMFColorWidget.h"

#include "SpxMFSetFieldValueCommand.h"

#include <xsg/fields/SoMFColor.h>

EdMFColorWidget::EdMFColorWidget(const char* name)
    : EdMFVec3fWidget(name, ColorTableKind)
{
    setHandledType(SoMFColor::getClassTypeId());
    setName("MFColor");
    if (!name)
        setObjectName(QStringLiteral("EdMFColorWidget"));
}

void EdMFColorWidget::load()
{
    setFieldName(QStringLiteral("MFColor"));
    EdMFieldWidget::load();
    initClass();
}

void EdMFColorWidget::initClass()
{
    initColumns({QStringLiteral("Color"), QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B")}, 4);
}

bool EdMFColorWidget::checkField(SoField* field)
{
    return field && field->isOfType(SoMFColor::getClassTypeId());
}

void EdMFColorWidget::setSingleFieldValue(float value, int row, int column)
{
    if (value >= 0.F && value <= 1.F)
        EdMFVec3fWidget::setSingleFieldValue(value, row, column);
}

void EdMFColorWidget::setValue(int row, const void* rgb)
{
    if (!hasRow(row))
        return;
    values()->set1Value(row, SbVec3f(static_cast<const float*>(rgb)));
    // Built after the write, so that both its texts hold the new colour.
    SpxFieldEdit::record(std::make_unique<SpxMFSetFieldValueCommand>(values(), row));
}
