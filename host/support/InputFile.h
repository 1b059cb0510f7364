// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QByteArray;

namespace scopix
{

/// Reads a small file as a whole. Why it cannot be read, as the end of a sentence, or an empty text: it does
/// not exist, is no regular file (a pipe would keep who opens it waiting), or has more bytes than `most`. Any
/// thread.
QString readFile(const QString& path, qint64 most, QByteArray& content);

} // namespace scopix
