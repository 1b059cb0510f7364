// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace scopix
{

/// Where the host keeps what belongs to one person: settings, profiles, recent files, unsaved edits.
namespace UserSettings
{

/// The path of a file or folder of this name in the user's configuration. Asked anew each time, since the
/// environment says where that is.
QString path(const QString& name);
/// The file with what the window remembers: places, colours, recent files.
QString windowFile();

} // namespace UserSettings

} // namespace scopix
