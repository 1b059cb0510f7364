// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace scopix
{

/// Where plug-ins are found without being named.
namespace PluginSearchPath
{

/// The user's own folder for plug-ins; it need not exist.
QString ofUser();

/// Plug-in libraries beside the program, in its installed plug-in folder and in the user's, in this order. Of
/// two files of one name, the first found counts.
QStringList findAll();

} // namespace PluginSearchPath

} // namespace scopix
