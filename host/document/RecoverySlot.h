// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>

#include <memory>

namespace scopix
{

/// The files of one session's unsaved edits in a folder that the user's sessions share: a scene file, a file
/// that says what was edited, a journal, and a lock that distinguishes running sessions from crashed ones.
/// GUI thread only.
class RecoverySlot
{
public:
    /// Of the scene that is edited.
    struct Origin {
        QString path; // of the file it came from, or empty
        QString title;
    };

    /// A new slot, locked for this session; null where the folder cannot be written.
    static std::unique_ptr<RecoverySlot> make(const QString& folder);
    /// What a crashed session left behind, locked for this one; the newest where there are several, null
    /// where there is none. Slots of running sessions are left alone.
    static std::unique_ptr<RecoverySlot> findOrphaned(const QString& folder);

    /// Releases the lock. The files stay, for the next session to find.
    ~RecoverySlot() = default;

    QString scenePath() const { return m_base + QStringLiteral(".xsg"); }
    /// Of what was edited after the scene was written.
    QString journalPath() const { return m_base + QStringLiteral(".journal"); }
    /// A comment that ends a scene file, by which its journal knows it, and the id in it.
    static QByteArray snapshotComment(const QByteArray& id) { return "# snapshot " + id + '\n'; }
    QByteArray getSnapshotId() const;
    Origin getOrigin() const;
    /// False where it cannot be written.
    bool setOrigin(const Origin& origin) const;
    QDateTime getTime() const; // when the edits were written last

    /// Removes the files and releases the lock; the slot is of no use any more.
    void remove();

private:
    explicit RecoverySlot(const QString& base);
    QString originPath() const { return m_base + QStringLiteral(".json"); }

    QString m_base;
    QLockFile m_lock;
};

} // namespace scopix
