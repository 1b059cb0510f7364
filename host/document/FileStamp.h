// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

#include <sys/stat.h>

namespace scopix
{

/// What a file is like at one moment, to find out later whether a program has changed it. Decides by the
/// content where it can, which a thread computes a checksum of: a file that was merely touched, copied or
/// renamed into place is the same. GUI thread only.
class FileStamp
{
public:
    enum class Difference { None, Changed, Deleted };

    /// That of no file.
    FileStamp() = default;
    /// That of the file as it is now; the checksum follows, unless the file changes before it is complete.
    explicit FileStamp(const QString& path);

    /// Waits until the checksum is complete; what happens to the file from then on is told by its content.
    void complete() const;
    /// How the file differs now. Waits for the checksum where it is needed.
    Difference compare(const QString& path);

private:
    class Checksum;

    struct stat m_about {
    };
    bool m_isOfFile = false;
    std::shared_ptr<Checksum> m_checksum;
};

} // namespace scopix
