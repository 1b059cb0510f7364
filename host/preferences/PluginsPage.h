// SPDX-License-Identifier: MIT
#pragma once

#include "start/PluginState.h"

#include <QWidget>

namespace scopix
{

/// Which plug-ins there are, and why one is not loaded. GUI thread only.
class PluginsPage : public QWidget
{
    Q_OBJECT

public:
    explicit PluginsPage(const std::vector<PluginState>& plugins, QWidget* parent = nullptr);
};

} // namespace scopix
