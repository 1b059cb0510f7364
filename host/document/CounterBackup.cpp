// SPDX-License-Identifier: MIT
#include "document/CounterBackup.h"

#include "settings/UserSettings.h"
#include "support/InputFile.h"
#include "support/OutputFile.h"

#include <xsg/core/SoPreferences.h>
#include <xsg/support/FileLock.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace scopix
{

namespace
{

constexpr qint64 LargestFile = 64 * 1024 * 1024;

// While the tool writes it, the file is not whole.
QString readWhole(const QString& path, QByteArray& content)
{
    const xsg::FileLock lock(QFile::encodeName(path).toStdString(), xsg::FileLock::Kind::Shared);
    return lock.isBusy() ? CounterBackup::tr("another program is using it")
                         : readFile(path, LargestFile, content);
}

QString damageIn(const QByteArray& content)
{
    QXmlStreamReader reader(content);
    const bool hasRoot = reader.readNextStartElement() && reader.name() == QLatin1String("perfCounterModule");
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        return CounterBackup::tr("line %1: %2")
            .arg(QString::number(reader.lineNumber()), reader.errorString());
    return hasRoot ? QString() : CounterBackup::tr("it holds no performance counters");
}

// Several installations may have a file each.
QString copyOf(const QString& file)
{
    const QByteArray hash = QCryptographicHash::hash(QFile::encodeName(file), QCryptographicHash::Sha1);
    return UserSettings::path(
        QStringLiteral("PerfCounter-%1.xml").arg(QString::fromLatin1(hash.toHex().left(8))));
}

QString damagedName(const QString& file)
{
    const QFileInfo info(file);
    return info.dir().filePath(info.completeBaseName() + QStringLiteral(".damaged.") + info.suffix());
}

} // namespace

QString CounterBackup::standardFile()
{
    const std::string home = SoPreferences::getString("XSGHOME", SbString()).str();
    return QFile::decodeName(home.c_str()) + QStringLiteral("/data/Scopix/PerfCounter.xml");
}

CounterBackup::CounterBackup(QString file)
    : m_file(QFileInfo(file).absoluteFilePath())
    , m_copy(copyOf(m_file))
{
    connect(&m_watch, &FileWatch::noticed, this, &CounterBackup::keep);
}

CounterBackup::~CounterBackup()
{
    if (m_isStarted)
        keep(); // what was written last may not have been noticed yet
}

QString CounterBackup::findDamage() const
{
    QByteArray content;
    if (!QFileInfo::exists(m_file))
        return {};
    return readWhole(m_file, content).isEmpty() ? damageIn(content) : QString();
}

bool CounterBackup::hasCopy() const
{
    return QFileInfo(m_copy).isFile();
}

QDateTime CounterBackup::getTime() const
{
    return QFileInfo(m_copy).lastModified();
}

QString CounterBackup::restore() const
{
    QByteArray damaged;
    QByteArray copy;
    QString reason = readFile(m_copy, LargestFile, copy);
    if (reason.isEmpty() && readFile(m_file, LargestFile, damaged).isEmpty())
        reason = replaceFile(damagedName(m_file), damaged);
    if (reason.isEmpty())
        reason = replaceFile(m_file, copy);
    return reason.isEmpty() ? QString() : tr("“%1” cannot be put back: %2.").arg(m_file, reason);
}

void CounterBackup::start()
{
    m_isStarted = true;
    keep();
    m_watch.watch(m_file);
}

// A copy that cannot be kept is one that is missing later; nothing is lost by that now.
void CounterBackup::keep() const
{
    QByteArray content;
    QByteArray before;
    if (!QFileInfo::exists(m_file) || !readWhole(m_file, content).isEmpty() || !damageIn(content).isEmpty())
        return;
    if (readFile(m_copy, LargestFile, before).isEmpty() && before == content)
        return;
    QDir().mkpath(QFileInfo(m_copy).path());
    replaceFile(m_copy, content);
}

} // namespace scopix
