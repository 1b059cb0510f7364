// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace scopix
{

/// Where the host keeps what belongs to one user: settings, profiles, recent files, unsaved edits.
namespace UserSettings
{

/// The path of a file or folder of this name in the user's configuration. Computed on each call, since the
/// environment says where that is.
QString path(const QString& name);
/// A folder that the environment gives, which may be relative: then it is in the home folder, so that it is
/// the same wherever the program is started.
QString absolute(const QString& folder);
/// The file with what the window remembers: geometry, layout, palette, recent files.
QString windowFile();

} // namespace UserSettings

} // namespace scopix
