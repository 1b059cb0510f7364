// SPDX-License-Identifier: MIT
#include "SpxEditor.h"

SpxEditor::SpxEditor() = default;

SpxEditor::~SpxEditor() = default;

SoType SpxEditor::getHandledType()
{
    return m_handledType;
}

void SpxEditor::setEditedObject(SoTypedObject* object)
{
    m_editedObject = object;
}

SoTypedObject* SpxEditor::getEditedObject() const
{
    return m_editedObject;
}

QWidget* SpxEditor::getWidget() const
{
    return m_widget;
}
