// SPDX-License-Identifier: MIT
#include "SpxNodeEditor.h"

#include <scopix/SpxServices.h>
#include <xsg/core/SoFieldContainer.h>

SpxNodeEditor::SpxNodeEditor()
    : SpxEditorDock("Node Editor")
{
}

void SpxNodeEditor::s_selectedNodeChanged(SoFieldContainer* node)
{
    showEditorOf(node);
}

void SpxNodeEditor::connectTo(SpxServices* services)
{
    connect(services, &SpxServices::selectedNodeChanged, this, &SpxNodeEditor::s_selectedNodeChanged);
}

void SpxNodeEditor::disconnectFrom(SpxServices* services)
{
    disconnect(services, &SpxServices::selectedNodeChanged, this, &SpxNodeEditor::s_selectedNodeChanged);
}
