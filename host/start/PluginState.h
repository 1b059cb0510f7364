// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace scopix
{

/// What has become of one plug-in.
struct PluginState {
    enum class State { Loaded, SetAside, Refused };

    QString name;
    State state;
    QString reason; // a sentence where it is not loaded
};

/// All that were found, as they are now.
using PluginStates = std::function<std::vector<PluginState>()>;

/// "loaded" and its like, for people.
QString textOf(PluginState::State state);

} // namespace scopix
