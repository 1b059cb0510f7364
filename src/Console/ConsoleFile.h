// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace consoleFile
{

/// Whether the console may write its text to a file of this name. It must not to what is no regular file, to
/// a file without write permission, nor to one whose name belongs to another kind of file: a scene, a model,
/// a picture, settings.
bool mayBeWritten(const QString& path);

} // namespace consoleFile
