// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxObjectEditor.h>

namespace inspector
{

/// The panel of a whole node, whatever its type. GUI thread only.
class PanelEditor : public SpxObjectEditor
{
    Q_OBJECT

public:
    PanelEditor();

protected:
    void build(QWidget& widget) override;
    void refresh() override;
};

} // namespace inspector
