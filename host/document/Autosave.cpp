// SPDX-License-Identifier: MIT
#include "document/Autosave.h"

#include "document/SceneDocument.h"
#include "services/HostPreview.h"
#include "settings/UserSettings.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace scopix
{

namespace
{

constexpr int PauseMs = 3000;
constexpr int LimitMs = 5000;     // of editing without a pause
constexpr int MostWaitMs = 20000; // where a snapshot takes long
constexpr int RecordMs = 1000;    // from an edit to its record
constexpr int TurnMs = 8;         // of making records, until the user's events are looked at again
constexpr int ShortBreakMs = 4;   // before it goes on
constexpr int LeastRatio = 20;    // of a snapshot's pause to the time that one keeps the user waiting
constexpr int MostInterruptions = 3;
constexpr qint64 LargestJournal = 16 << 20; // a snapshot takes its place

} // namespace

QString Autosave::standardFolder()
{
    return UserSettings::path(QStringLiteral("recovery"));
}

Autosave::Autosave(SceneDocument& document, QString folder)
    : m_document(document)
    , m_folder(std::move(folder))
    , m_pauseMs(PauseMs)
    , m_limitMs(LimitMs)
{
    for (QTimer* timer : {&m_pause, &m_limit, &m_recordTimer})
        timer->setSingleShot(true);
    m_pause.setObjectName(QStringLiteral("pause"));
    connect(&m_pause, &QTimer::timeout, this, &Autosave::writeWhenUndisturbed);
    connect(&m_limit, &QTimer::timeout, this, &Autosave::writeAnyway);
    connect(&m_recordTimer, &QTimer::timeout, this, &Autosave::recordChanges);
    connect(&m_writer, &SnapshotWriter::finished, this, &Autosave::written);
    connect(&m_journal, &EditJournal::failed, this, [this](const QString& reason) {
        m_hasSnapshot = false;
        fail(tr("The file “%1” cannot be written: %2.")
                 .arg(m_slot ? m_slot->journalPath() : m_folder, reason));
    });
}

Autosave::~Autosave()
{
    if (m_document.isModified())
        keepNow();
    else
        drop();
}

void Autosave::start()
{
    if (std::exchange(m_started, true))
        return;
    connect(&m_document, &SceneDocument::edited, this, &Autosave::edited);
    // What is half written is completed with the present values.
    connect(&m_document.preview(), &HostPreview::aboutToShowFormer, this, [this] {
        m_writer.finishNow();
        recordFor(-1);
    });
    connect(&m_document, &SceneDocument::rootChanged, this, &Autosave::stopFollowing);
    if (const QCoreApplication* application = QCoreApplication::instance())
        connect(application, &QCoreApplication::aboutToQuit, this, &Autosave::keepNow);
    // From the event loop: a history that is being rebuilt is clean for a moment.
    connect(&m_document, &SceneDocument::stateChanged, this, &Autosave::stateChanged, Qt::QueuedConnection);
    if (m_document.isModified())
        edited();
}

void Autosave::adopt(std::shared_ptr<RecoverySlot> slot)
{
    drop();
    m_slot = std::move(slot);
}

void Autosave::drop()
{
    m_hasEdits = false;
    m_pending = false;
    m_pause.stop();
    m_limit.stop();
    stopFollowing();
    m_journal.wait(); // or its file would come back
    if (m_slot)
        m_slot->remove();
    m_slot.reset();
}

// The scene that is followed may be about to go.
void Autosave::stopFollowing()
{
    m_recordTimer.stop();
    m_writer.cancel();
    m_changes.watch(nullptr);
    m_hasSnapshot = false;
    m_interruptions = 0;
}

// Whether what changes is recorded, now or once the snapshot is complete.
bool Autosave::takesRecords() const
{
    return (m_hasSnapshot || m_writer.isBusy()) && m_changes.isWatching() && !m_changes.isStructureChanged();
}

void Autosave::edited()
{
    if (!m_document.isModified())
        return;
    m_hasEdits = true;
    if (!takesRecords())
        askForSnapshot();
    else if (m_hasSnapshot && !m_recordTimer.isActive())
        m_recordTimer.start(std::min(RecordMs, m_pauseMs));
}

void Autosave::askForSnapshot()
{
    m_pending = true;
    startTimer(m_pause, m_pauseMs);
    if (!m_limit.isActive())
        startTimer(m_limit, m_limitMs);
}

void Autosave::startTimer(QTimer& timer, int ms)
{
    const qint64 least = std::min<qint64>(LeastRatio * m_writer.getLastBlockedMs(), MostWaitMs);
    timer.start(static_cast<int>(std::max<qint64>(ms, least)));
}

void Autosave::stateChanged()
{
    if (!m_document.isModified())
        drop();
    else if (!m_slot && !m_pending)
        edited();
}

// While a button is held, an edit is in progress; the pause begins with its release.
void Autosave::writeWhenUndisturbed()
{
    if (!m_pending)
        return;
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        startTimer(m_pause, m_pauseMs);
    else
        writeAnyway();
}

void Autosave::writeAnyway()
{
    if (!m_pending)
        return;
    if (m_writer.isBusy()) // with a scene that has changed since
        startTimer(m_pause, m_pauseMs);
    else if (m_document.preview().isShowingFormer())
        m_document.preview().withPresent([this] { writeWhole(); });
    else
        write();
}

void Autosave::writeWhole()
{
    m_writer.finishNow();
    if (m_pending)
        write();
    m_writer.finishNow();
    recordFor(-1);
}

void Autosave::write()
{
    m_pending = false;
    m_pause.stop();
    m_limit.stop();
    m_recordTimer.stop();
    recordFor(-1); // the snapshot before this one stands until this one is complete
    m_hasSnapshot = false;
    if (!m_slot)
        m_slot = RecoverySlot::make(m_folder);
    if (!m_slot || !m_slot->setOrigin({m_document.getPath(), m_document.getTitle()}))
        return fail(tr("Nothing can be written to “%1”.").arg(m_folder));
    m_snapshotId = QUuid::createUuid().toByteArray(QUuid::Id128);
    m_changes.watch(m_document.getRoot());
    m_writer.write(m_document.getRoot(), m_slot->scenePath(), RecoverySlot::snapshotComment(m_snapshotId));
    if (m_interruptions >= MostInterruptions)
        m_writer.finishNow();
}

// In the middle of a change. A scene that is becoming text must not be looked at any more; one that is text
// already is worth keeping.
void Autosave::structureChanged()
{
    m_recordTimer.stop();
    if (!m_writer.isReading())
        return;
    m_writer.cancel();
    ++m_interruptions;
    askForSnapshot();
}

void Autosave::written(const QString& error)
{
    if (!error.isEmpty())
        return fail(error);
    m_failed = false;
    m_interruptions = 0;
    m_hasSnapshot = m_changes.isWatching() && !m_changes.isStructureChanged();
    if (!m_hasSnapshot)
        return;
    m_journal.begin(m_slot->journalPath(), m_snapshotId);
    recordChanges();
}

void Autosave::recordChanges()
{
    m_document.preview().withPresent([this] { recordFor(TurnMs); });
    if (m_hasSnapshot && takesRecords() && !m_changes.isEmpty())
        m_recordTimer.start(ShortBreakMs);
    else if (m_journal.getSize() > LargestJournal)
        askForSnapshot();
}

void Autosave::recordFor(int ms)
{
    if (!m_hasSnapshot || !takesRecords())
        return;
    const QDeadlineTimer deadline(ms);
    std::vector<FieldRecord> records;
    while (!m_changes.isEmpty() && !deadline.hasExpired()) {
        FieldRecord record = m_writer.recordOf(*m_changes.take());
        if (!record.text.empty())
            records.push_back(std::move(record));
    }
    if (!records.empty())
        m_journal.append(std::move(records));
}

void Autosave::keepNow()
{
    if (!m_hasEdits || !m_document.isModified())
        return;
    m_document.preview().showPresent();
    m_writer.finishNow();
    if (!m_hasSnapshot || !takesRecords()) {
        write();
        m_writer.finishNow();
    }
    recordFor(-1);
    m_journal.wait();
}

void Autosave::fail(const QString& sentence)
{
    if (!std::exchange(m_failed, true))
        emit failed(tr("Unsaved edits would not survive a crash. %1").arg(sentence));
}

} // namespace scopix
