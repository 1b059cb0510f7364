// SPDX-License-Identifier: MIT
#pragma once

#include <support/Session.h>

/// A running host with the default plug-in and, after it, the Inspector.
class InspectorSession : public Session
{
public:
    InspectorSession() { EXPECT_TRUE(host.plugins().loadPlugin(QStringLiteral(INSPECTOR_FILE))); }

    void selectNode(SoFieldContainer* node)
    {
        host.services().select(node);
        settle();
    }
    /// The panel's widget where it is docked, or null.
    QWidget* panel()
    {
        QDockWidget* panelDock = dock(QStringLiteral("Node Editor"));
        return panelDock && panelDock->isVisible() ? panelDock->widget() : nullptr;
    }
};
