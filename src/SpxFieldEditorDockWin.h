// SPDX-License-Identifier: MIT
#pragma once

#include "SpxEditorDock.h"

class SoField;

/// The dock that shows the editor of the selected field.
class SpxFieldEditorDockWin : public SpxEditorDock
{
    Q_OBJECT

public:
    SpxFieldEditorDockWin();

public slots:
    void s_selectedFieldChanged(SoField* field);

private:
    void connectTo(SpxServices* services) override;
    void disconnectFrom(SpxServices* services) override;
};
