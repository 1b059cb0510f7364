// SPDX-License-Identifier: MIT
#include "cost/CostDock.h"

#include "cost/CostPanel.h"

namespace profiler
{

CostDock::CostDock()
    : PanelDock(QT_TRANSLATE_NOOP("Extension", "Cost"),
                QT_TRANSLATE_NOOP("Extension", "Measures what each branch of the scene costs."))
{
}

QWidget* CostDock::makePanel()
{
    return new CostPanel;
}

// What is not shown keeps no node alive.
void CostDock::deactivate()
{
    if (auto* panel = static_cast<CostPanel*>(getPanel()))
        panel->clear();
    PanelDock::deactivate();
}

} // namespace profiler
