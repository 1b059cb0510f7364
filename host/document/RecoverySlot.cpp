// SPDX-License-Identifier: MIT
#include "document/RecoverySlot.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QUuid>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr qint64 LongestComment = 128;

} // namespace

RecoverySlot::RecoverySlot(const QString& base)
    : m_base(base)
    , m_lock(base + QStringLiteral(".lock"))
{
    m_lock.setStaleLockTime(0); // a session may live for days; only its end frees its lock
}

std::unique_ptr<RecoverySlot> RecoverySlot::make(const QString& folder)
{
    if (!QDir().mkpath(folder))
        return nullptr;
    // Unsaved edits are private to the user.
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString name = QUuid::createUuid().toString(QUuid::Id128);
    std::unique_ptr<RecoverySlot> slot(new RecoverySlot(folder + QLatin1Char('/') + name));
    return slot->m_lock.tryLock() ? std::move(slot) : nullptr;
}

std::unique_ptr<RecoverySlot> RecoverySlot::findOrphaned(const QString& folder)
{
    std::unique_ptr<RecoverySlot> newest;
    const QFileInfoList origins = QDir(folder).entryInfoList({QStringLiteral("*.json")}, QDir::Files);
    for (const QFileInfo& origin : origins) {
        std::unique_ptr<RecoverySlot> slot(
            new RecoverySlot(origin.dir().filePath(origin.completeBaseName())));
        if (!slot->m_lock.tryLock())
            continue;
        if (!QFile::exists(slot->scenePath()))
            slot->remove(); // that session ended before it had written anything
        else if (!newest || slot->getTime() > newest->getTime())
            newest = std::move(slot);
    }
    return newest;
}

RecoverySlot::Origin RecoverySlot::getOrigin() const
{
    QFile file(originPath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    const QString path = object.value(QStringLiteral("path")).toString();
    // A relative path, as earlier builds wrote it, may mean another file by now.
    return {QDir::isAbsolutePath(path) ? path : QString(), object.value(QStringLiteral("title")).toString()};
}

bool RecoverySlot::setOrigin(const Origin& origin) const
{
    QSaveFile file(originPath());
    const QJsonObject object{{QStringLiteral("path"), origin.path}, {QStringLiteral("title"), origin.title}};
    // Flushed first: a failure to write in commit() itself goes unnoticed there.
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(object).toJson()) > 0 &&
           file.flush() && file.commit();
}

QByteArray RecoverySlot::getSnapshotId() const
{
    QFile file(scenePath());
    if (!file.open(QIODevice::ReadOnly) || !file.seek(std::max<qint64>(0, file.size() - LongestComment)))
        return {};
    const QByteArray start = snapshotComment({}).chopped(1);
    const QByteArray tail = file.readAll();
    const int at = tail.lastIndexOf(start);
    return at >= 0 && tail.endsWith('\n') ? tail.mid(at + start.size()).chopped(1) : QByteArray();
}

QDateTime RecoverySlot::getTime() const
{
    return std::max(QFileInfo(scenePath()).lastModified(), QFileInfo(journalPath()).lastModified());
}

void RecoverySlot::remove()
{
    const QFileInfo base(m_base);
    QDir folder(base.path());
    // Also what an interrupted write left under a temporary name.
    for (const QString& name : folder.entryList({base.fileName() + QStringLiteral(".*")}, QDir::Files)) {
        if (!name.endsWith(QStringLiteral(".lock")))
            folder.remove(name);
    }
    m_lock.unlock();
    folder.rmdir(folder.path()); // where this was the last one
}

} // namespace scopix
