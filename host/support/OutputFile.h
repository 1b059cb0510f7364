// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QByteArray;
class QStringList;

namespace scopix
{

/// Why the program must not write to this path, as the end of a sentence ("it is a folder"), or an empty
/// text: the ending of its name, or of what it leads to, belongs to another kind of file (`fileExtensions`,
/// in lower case, are the right ones), what is there is no regular file, or nobody may write to it. Whether
/// the disk takes it shows when it is written.
QString reasonAgainstWriting(const QString& path, const QStringList& fileExtensions);

/// Gives the file this content: it is the old one or the new one, whatever happens. See xsg::FileReplacement
/// for what becomes of its mode and its links. Why it cannot be written, as the end of a sentence, or an
/// empty text. Any thread.
QString replaceFile(const QString& path, const QByteArray& content);

} // namespace scopix
