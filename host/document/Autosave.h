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
/// once the person pauses, taken away when there is nothing unsaved any more. What a crashed session left can
/// be taken up. GUI thread only.
class Autosave : public QObject
{
    Q_OBJECT

public:
    /// Of a person: beside their settings.
    static QString standardFolder();

    /// `document` must outlive it. Does nothing until it is started.
    explicit Autosave(SceneDocument& document, QString folder = standardFolder());
    /// Leaves nothing behind, unless there are edits that nobody agreed to drop.
    ~Autosave() override;

    void start();
    /// How long a person must have paused, in milliseconds; 3000 unless set.
    void setPause(int ms) { m_pause.setInterval(ms); }
    /// After how long someone who never pauses is saved too, in milliseconds; 60000 unless set.
    void setLimit(int ms) { m_limit.setInterval(ms); }
    /// The edits go on from what another session left: its place becomes this one's.
    void adopt(std::unique_ptr<RecoverySlot> slot);
    /// The person agreed to lose the edits, or there are none.
    void drop();
    const QString& getFolder() const { return m_folder; }

signals:
    /// The edits cannot be kept; one sentence. Told once until it works again.
    void failed(const QString& sentence);

private:
    void edited();
    void stateChanged();
    void writeWhenUndisturbed();
    void write();
    void written(const QString& error);
    void fail(const QString& sentence);

    SceneDocument& m_document;
    QString m_folder;
    QTimer m_pause{this}; // runs out when the person has paused
    QTimer m_limit{this}; // runs out when they did not for long
    std::unique_ptr<RecoverySlot> m_slot;
    SnapshotWriter m_writer;
    bool m_started = false;
    bool m_pending = false; // edits since the last writing began
    bool m_failed = false;
};

} // namespace scopix
