// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExtension.h>

class QDockWidget;

/// The extension that docks the performance-counter tool, or, where it is not switched on, a message that
/// says how.
class SpxPerfCounterExtension : public SpxExtension
{
    Q_OBJECT

public:
    SpxPerfCounterExtension();

    void activate() override;
    void deactivate() override;
    void hide() override;
    /// Reads the switch, the preference XSG_PERFCOUNTER_ENABLE.
    void load() override;
    void show() override;
    void unload() override;

private:
    QDockWidget* m_dock = nullptr; // the extension's own
};
