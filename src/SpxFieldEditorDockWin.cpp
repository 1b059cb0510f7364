// SPDX-License-Identifier: MIT
#include "SpxFieldEditorDockWin.h"

#include <scopix/SpxServices.h>
#include <xsg/core/SoField.h>

SpxFieldEditorDockWin::SpxFieldEditorDockWin()
    : SpxEditorDock("Field Editor")
{
}

void SpxFieldEditorDockWin::s_selectedFieldChanged(SoField* field)
{
    showEditorOf(field);
}

void SpxFieldEditorDockWin::connectTo(SpxServices* services)
{
    connect(services, &SpxServices::selectedFieldChanged, this,
            &SpxFieldEditorDockWin::s_selectedFieldChanged);
}

void SpxFieldEditorDockWin::disconnectFrom(SpxServices* services)
{
    disconnect(services, &SpxServices::selectedFieldChanged, this,
               &SpxFieldEditorDockWin::s_selectedFieldChanged);
}
