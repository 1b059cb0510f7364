// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>

#include <memory>

namespace scopix
{

/// The place of one session's unsaved edits in a folder that the user's sessions share: a scene file, a file
/// that says whose edits these are, and a lock that tells the living from the crashed. GUI thread only.
class RecoverySlot
{
public:
    /// Of the scene that is edited.
    struct Origin {
        QString path; // of the file it came from, or empty
        QString title;
    };

    /// A new place, locked for this session; null where the folder cannot be written.
    static std::unique_ptr<RecoverySlot> make(const QString& folder);
    /// What a session left behind that did not end by itself, locked for this one; the newest where there are
    /// several, null where there is none. What sessions that live have is left alone.
    static std::unique_ptr<RecoverySlot> findOrphaned(const QString& folder);

    /// Lets the lock go. The files stay: whoever comes next finds them as lost.
    ~RecoverySlot() = default;

    QString scenePath() const { return m_base + QStringLiteral(".xsg"); }
    Origin getOrigin() const;
    /// False where it cannot be written.
    bool setOrigin(const Origin& origin) const;
    QDateTime getTime() const; // when the edits were written last

    /// Takes the files away; the place is of no use any more.
    void remove();

private:
    explicit RecoverySlot(const QString& base);
    QString originPath() const { return m_base + QStringLiteral(".json"); }

    QString m_base;
    QLockFile m_lock;
};

} // namespace scopix
