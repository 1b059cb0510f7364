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
    SbString previous;
    auto command = std::make_unique<SpxMFSetValueCommand>(editedField(), row, previous);
    // Text that the field refuses changes nothing, so there is nothing to undo.
    if (editedField()->set1(row, value))
        EdFieldEdits::record(std::move(command));
}
