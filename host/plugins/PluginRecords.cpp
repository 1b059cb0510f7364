// SPDX-License-Identifier: MIT
#include "plugins/PluginRecords.h"

#include "settings/UserSettings.h"

#include <scopix/SpxVersion.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <array>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace scopix
{

namespace
{

constexpr qint64 LargestRecord = 1 << 16;

qint64 nanoseconds(const timespec& time)
{
    return qint64{time.tv_sec} * 1000000000 + time.tv_nsec;
}

// Changes whenever the file is written, replaced or copied over, and with what may load it differently.
QByteArray identityOf(const QString& library)
{
    struct stat about {
    };
    if (stat(QFile::encodeName(library).constData(), &about) != 0)
        return {};
    const std::array<qint64, 5> numbers{qint64(about.st_dev), qint64(about.st_ino), qint64(about.st_size),
                                        nanoseconds(about.st_mtim), nanoseconds(about.st_ctim)};
    QByteArray identity = QByteArray(SPX_SCOPIX_VERSION) + ' ' + qVersion();
    for (const qint64 number : numbers)
        identity += ' ' + QByteArray::number(number);
    return identity;
}

QByteArray readLocked(int descriptor)
{
    QFile file;
    return file.open(descriptor, QIODevice::ReadOnly) ? file.read(LargestRecord) : QByteArray();
}

QString key(const char* name)
{
    return QLatin1String(name);
}

} // namespace

PluginRecords::Start::Start(QByteArray path, int descriptor)
    : m_path(std::move(path))
    , m_descriptor(descriptor)
{
}

PluginRecords::Start::~Start()
{
    unlink(m_path.constData());
    close(m_descriptor);
}

PluginRecords::PluginRecords(QString folder)
    : m_folder(std::move(folder))
{
}

QString PluginRecords::standardFolder()
{
    return UserSettings::path(QStringLiteral("plugins"));
}

QString PluginRecords::pathFor(const QString& library, const char* suffix) const
{
    const QByteArray path = QFile::encodeName(QFileInfo(library).canonicalFilePath());
    const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
    return m_folder + QLatin1Char('/') + QString::fromLatin1(hash) + QLatin1String(suffix);
}

std::optional<PluginRecords::Record> PluginRecords::find(const QString& library) const
{
    QFile file(pathFor(library, ".json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(file.read(LargestRecord)).object();
    if (object.value(key("identity")).toString() != QString::fromLatin1(identityOf(library)))
        return {};
    return Record{object.value(key("quarantined")).toBool(), object.value(key("reason")).toString()};
}

void PluginRecords::write(const QString& library, const Record& record) const
{
    const QJsonObject object{{key("library"), QFileInfo(library).canonicalFilePath()},
                             {key("identity"), QString::fromLatin1(identityOf(library))},
                             {key("quarantined"), record.isQuarantined},
                             {key("reason"), record.reason}};
    QDir().mkpath(m_folder);
    QSaveFile file(pathFor(library, ".json"));
    // Flushed first: a failure to write in commit() itself goes unnoticed there.
    if (file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(object).toJson()) > 0 && file.flush())
        file.commit();
}

void PluginRecords::forget(const QString& library) const
{
    QFile::remove(pathFor(library, ".json"));
}

// The lock goes with the process, however that ends; the file stays.
std::unique_ptr<PluginRecords::Start> PluginRecords::begin(const QString& library) const
{
    QDir().mkpath(m_folder);
    const QByteArray path = QFile::encodeName(pathFor(library, ".starting"));
    const int descriptor = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return nullptr;
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        close(descriptor);
        return nullptr;
    }
    std::unique_ptr<Start> start(new Start(path, descriptor));
    const QByteArray identity = identityOf(library);
    const bool isNoted = ftruncate(descriptor, 0) == 0 && ::write(descriptor, identity.constData(),
                                                                  size_t(identity.size())) == identity.size();
    return isNoted ? std::move(start) : nullptr;
}

bool PluginRecords::takeBrokenStart(const QString& library) const
{
    const QByteArray path = QFile::encodeName(pathFor(library, ".starting"));
    const int descriptor = open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isBroken = flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    const bool isSame = isBroken && readLocked(descriptor) == identityOf(library);
    if (isBroken)
        unlink(path.constData());
    close(descriptor);
    return isSame;
}

} // namespace scopix
