// SPDX-License-Identifier: MIT
#pragma once

#include "document/ChangedFields.h"
#include "document/EditJournal.h"
#include "document/RecoverySlot.h"
#include "document/SnapshotWriter.h"

#include <QObject>
#include <QTimer>

namespace scopix
{

class SceneDocument;

/// Keeps unsaved edits in files of the user's, so that a crash loses the last second and no more, and removes
/// them when nothing is unsaved any more. Once the user pauses, the whole scene is written; from then on a
/// journal beside it takes each field that changes, until more than fields change. All of it is done between
/// the user's events, a little at a time. What a crashed session left can be adopted. GUI thread only.
class Autosave : public QObject
{
    Q_OBJECT

public:
    /// Beside the user's settings.
    static QString standardFolder();

    /// `document` must outlive it. Does nothing until it is started.
    explicit Autosave(SceneDocument& document, QString folder = standardFolder());
    /// Leaves no file behind, unless there are edits that the user did not agree to drop.
    ~Autosave() override;

    void start();
    /// How long the user must have paused, in milliseconds; 3000 unless set.
    void setPause(int ms) { m_pauseMs = ms; }
    /// After how long edits without a pause are written too, in milliseconds; 5000 unless set.
    void setLimit(int ms) { m_limitMs = ms; }
    /// The edits continue what another session left: its slot becomes this one's.
    void adopt(std::shared_ptr<RecoverySlot> slot);
    /// The user agreed to lose the edits, or there are none.
    void drop();
    /// All edits are on the disk when this returns, or cannot be written: the session is about to end and
    /// nobody can be asked.
    void keepNow();
    const QString& getFolder() const { return m_folder; }

signals:
    /// The edits cannot be kept; one sentence. Emitted once until it works again.
    void failed(const QString& sentence);

private:
    void edited();
    bool takesRecords() const;
    void askForSnapshot();
    void startTimer(QTimer& timer, int ms);
    void stateChanged();
    void structureChanged();
    void writeWhenUndisturbed();
    void writeAnyway();
    void write();
    void writeWhole();
    void written(const QString& error);
    void recordChanges();
    void recordFor(int ms);
    void stopFollowing();
    void fail(const QString& sentence);

    SceneDocument& m_document;
    QString m_folder;
    int m_pauseMs;
    int m_limitMs;
    QTimer m_pause{this}; // runs out when the user has paused
    QTimer m_limit{this}; // runs out when the user has not paused for long
    QTimer m_recordTimer{this};
    std::shared_ptr<RecoverySlot> m_slot;
    SnapshotWriter m_writer{this};
    EditJournal m_journal;
    ChangedFields m_changes{[this] { structureChanged(); }}; // since the last snapshot began
    QByteArray m_snapshotId;                                 // of the last one that began
    bool m_hasSnapshot = false;                              // which the journal continues
    int m_interruptions = 0;                                 // of snapshots, since one was completed
    bool m_started = false;
    bool m_hasEdits = false; // that the user did not agree to lose
    bool m_pending = false;  // edits that wait for a snapshot
    bool m_failed = false;
};

} // namespace scopix
