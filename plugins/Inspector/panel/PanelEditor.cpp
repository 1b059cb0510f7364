// SPDX-License-Identifier: MIT
#include "panel/PanelEditor.h"

#include <xsg/core/SoFieldContainer.h>

namespace inspector
{

PanelEditor::PanelEditor()
{
    setName("Panel");
    setDescription("Shows every field of a node and edits them in place.");
    setVendor("Arvex");
    setVersion("1.0.0");
    setHandledType(SoFieldContainer::getClassTypeId());
}

void PanelEditor::build(QWidget& widget)
{
    widget.setObjectName(QStringLiteral("inspectorPanel"));
}

void PanelEditor::refresh() {}

} // namespace inspector
