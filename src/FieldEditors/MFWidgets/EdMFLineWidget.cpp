// SPDX-License-Identifier: MIT
#include "EdMFLineWidget.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoMField.h>

EdMFLineWidget::EdMFLineWidget(const char* name)
    : EdMFieldWidget(name)
{
    if (!name)
        setObjectName(QStringLiteral("EdMFLineWidget"));
}

void EdMFLineWidget::load()
{
    EdMFieldWidget::load();
    initColumns({}, 1);
}

bool EdMFLineWidget::checkField(SoField* field)
{
    return field && field->isOfType(SoMField::getClassTypeId());
}

QString EdMFLineWidget::getFieldValue(int row, int column) const
{
    if (column >= 1 || !hasRow(row))
        return {};
    return SpxText::toQString(getSingleFieldValue(row, column));
}

void EdMFLineWidget::set1Value(int row, int column, QString text)
{
    if (hasRow(row))
        setSingleFieldValue(SpxText::toSbString(text), row, column);
}

SbString EdMFLineWidget::getSingleFieldValue(int row, int /*column*/) const
{
    SbString value;
    editedField()->get1(row, value);
    return value;
}

void EdMFLineWidget::setSingleFieldValue(const SbString& value, int row, int /*column*/)
{
    editedField()->set1(row, value);
}

void EdMFLineWidget::swapRows(int row1, int row2)
{
    if (!hasRow(row1) || !hasRow(row2))
        return;
    const SbString first = getSingleFieldValue(row1, 0);
    const SbString second = getSingleFieldValue(row2, 0);
    editedField()->set1(row1, second);
    editedField()->set1(row2, first);
}
