// SPDX-License-Identifier: MIT
#pragma once

#include "PanelDock.h"

namespace profiler
{

/// The dock "Cost": what each branch of the scene costs.
class CostDock : public PanelDock
{
    Q_OBJECT

public:
    CostDock();

    void deactivate() override;

protected:
    QWidget* makePanel() override;
};

} // namespace profiler
