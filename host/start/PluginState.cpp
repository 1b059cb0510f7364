// SPDX-License-Identifier: MIT
#include "start/PluginState.h"

#include <QCoreApplication>

namespace scopix
{

QString textOf(PluginState::State state)
{
    switch (state) {
    case PluginState::State::Loaded:
        return QCoreApplication::translate("scopix::PluginState", "Loaded");
    case PluginState::State::SetAside:
        return QCoreApplication::translate("scopix::PluginState", "Set aside");
    default:
        return QCoreApplication::translate("scopix::PluginState", "Refused");
    }
}

} // namespace scopix
