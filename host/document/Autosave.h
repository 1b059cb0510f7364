// SPDX-License-Identifier: MIT
#pragma once

#include "document/RecoverySlot.h"
#include "document/SnapshotWriter.h"

#include <QObject>
#include <QTimer>

namespace scopix
{

class SceneDocument;

/// Keeps unsaved edits in a file of the user's, so that a crash loses the last seconds and no more: written
/// once the user pauses, removed when nothing is unsaved any more. What a crashed session left can be
/// adopted. A scene that takes long to write is written less often, so that the user is kept waiting for at
/// most a twentieth of the time. GUI thread only.
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
    /// After how long edits without a pause are written too, in milliseconds; 60000 unless set.
    void setLimit(int ms) { m_limitMs = ms; }
    /// The edits continue what another session left: its slot becomes this one's.
    void adopt(std::unique_ptr<RecoverySlot> slot);
    /// The user agreed to lose the edits, or there are none.
    void drop();
    const QString& getFolder() const { return m_folder; }

signals:
    /// The edits cannot be kept; one sentence. Emitted once until it works again.
    void failed(const QString& sentence);

private:
    void edited();
    void startTimer(QTimer& timer, int ms);
    void stateChanged();
    void writeWhenUndisturbed();
    void write();
    void written(const QString& error);
    void fail(const QString& sentence);

    SceneDocument& m_document;
    QString m_folder;
    int m_pauseMs;
    int m_limitMs;
    QTimer m_pause{this}; // runs out when the user has paused
    QTimer m_limit{this}; // runs out when the user has not paused for long
    std::unique_ptr<RecoverySlot> m_slot;
    SnapshotWriter m_writer;
    bool m_started = false;
    bool m_pending = false; // edits since the last writing began
    bool m_failed = false;
};

} // namespace scopix
