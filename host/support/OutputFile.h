// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QStringList;

namespace scopix
{

/// Why the program must not write to this path, as the end of a sentence ("it is a folder"), or an empty
/// text: the ending of its name belongs to another kind of file (`fileExtensions`, in lower case, are the
/// right ones), what is there is no regular file, or nobody may write to it. Whether the disk takes it shows
/// when it is written.
QString reasonAgainstWriting(const QString& path, const QStringList& fileExtensions);

} // namespace scopix
