// SPDX-License-Identifier: MIT
#include "EdMFDefaultFieldWidget.h"

#include "EdFieldEdits.h"

#include <xsg/core/SoMField.h>

EdMFDefaultFieldWidget::EdMFDefaultFieldWidget(const char* name)
    : EdMFLineWidget(name)
{
    setHandledType(SoMField::getClassTypeId());
    setName("MField");
    if (!name)
        setObjectName(QStringLiteral("EdMFDefaultFieldWidget"));
}

void EdMFDefaultFieldWidget::load()
{
    setFieldName(QStringLiteral("MField"));
    EdMFLineWidget::load();
}

void EdMFDefaultFieldWidget::setSingleFieldValue(const SbString& value, int row, int /*column*/)
{
    // Text that the field refuses changes nothing, so there is nothing to undo.
    EdFieldEdits::write1(editedField(), row, [&] { return editedField()->set1(row, value); });
}
