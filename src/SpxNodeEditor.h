// SPDX-License-Identifier: MIT
#pragma once

#include "SpxEditorDock.h"

class SoFieldContainer;

/// The dock that shows an editor of the selected node, where a plug-in brings one.
class SpxNodeEditor : public SpxEditorDock
{
    Q_OBJECT

public:
    SpxNodeEditor();

public slots:
    void s_selectedNodeChanged(SoFieldContainer* node);

private:
    void connectTo(SpxServices* services) override;
    void disconnectFrom(SpxServices* services) override;
};
