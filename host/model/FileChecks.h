// SPDX-License-Identifier: MIT
// What can be said about a file before anybody reads it.
#pragma once

#include <QString>

namespace scopix
{

/// "“PATH” cannot be opened: REASON."
QString cannotOpen(const QString& path, const QString& reason);
/// One sentence when there is no readable file with something in it, or when its name's ending is none of
/// `endings`; else empty.
QString checkFile(const QString& path, const QStringList& fileExtensions);

} // namespace scopix
