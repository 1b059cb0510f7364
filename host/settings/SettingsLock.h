// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/support/FileLock.h>

#include <QString>

namespace scopix
{

/// Keeps other sessions from changing the settings in a folder while this one reads, changes and writes them.
/// Waits for them for a while only. GUI thread only.
class SettingsLock
{
public:
    /// `file` is any file of the folder, which is made where it is missing.
    explicit SettingsLock(const QString& file);

    /// Empty where the settings may be changed, or the end of a sentence: another session has been changing
    /// them for too long.
    QString reasonAgainst() const;

private:
    xsg::FileLock m_lock;
};

} // namespace scopix
