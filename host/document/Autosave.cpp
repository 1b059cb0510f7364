// SPDX-License-Identifier: MIT
#include "document/Autosave.h"

#include "document/SceneDocument.h"
#include "settings/UserSettings.h"

#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace scopix
{

namespace
{

constexpr int PauseMs = 3000;
constexpr int LimitMs = 60000; // of editing without a pause
constexpr int LeastRatio = 20; // of the time between two writings to the time that one keeps the user waiting

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
    for (QTimer* timer : {&m_pause, &m_limit}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &Autosave::writeWhenUndisturbed);
    }
    m_pause.setObjectName(QStringLiteral("pause"));
    connect(&m_writer, &SnapshotWriter::finished, this, &Autosave::written);
}

Autosave::~Autosave()
{
    if (!m_document.isModified())
        drop();
}

void Autosave::start()
{
    if (std::exchange(m_started, true))
        return;
    connect(&m_document, &SceneDocument::edited, this, &Autosave::edited);
    // From the event loop: a history that is being rebuilt is clean for a moment.
    connect(&m_document, &SceneDocument::stateChanged, this, &Autosave::stateChanged, Qt::QueuedConnection);
    if (m_document.isModified())
        edited();
}

void Autosave::adopt(std::unique_ptr<RecoverySlot> slot)
{
    drop();
    m_slot = std::move(slot);
}

void Autosave::drop()
{
    m_pending = false;
    m_pause.stop();
    m_limit.stop();
    m_writer.cancel();
    if (m_slot)
        m_slot->remove();
    m_slot.reset();
}

void Autosave::edited()
{
    if (!m_document.isModified())
        return;
    m_pending = true;
    startTimer(m_pause, m_pauseMs);
    if (!m_limit.isActive())
        startTimer(m_limit, m_limitMs);
}

void Autosave::startTimer(QTimer& timer, int ms)
{
    timer.start(static_cast<int>(std::max<qint64>(ms, LeastRatio * m_writer.getLastBlockedMs())));
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
    if (m_writer.isBusy() || QGuiApplication::mouseButtons() != Qt::NoButton)
        startTimer(m_pause, m_pauseMs);
    else
        write();
}

void Autosave::write()
{
    m_pending = false;
    m_pause.stop();
    m_limit.stop();
    if (!m_slot)
        m_slot = RecoverySlot::make(m_folder);
    if (m_slot && m_slot->setOrigin({m_document.getPath(), m_document.getTitle()}))
        m_writer.write(m_document.getRoot(), m_slot->scenePath());
    else
        fail(tr("Nothing can be written to “%1”.").arg(m_folder));
}

void Autosave::written(const QString& error)
{
    if (error.isEmpty())
        m_failed = false;
    else
        fail(error);
}

void Autosave::fail(const QString& sentence)
{
    if (!std::exchange(m_failed, true))
        emit failed(tr("Unsaved edits would not survive a crash. %1").arg(sentence));
}

} // namespace scopix
