#include "import/FileChecks.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("FileChecks", text);
}

QString endingsText(const QStringList& endings)
{
    QStringList dotted;
    for (const QString& ending : endings)
        dotted << QLatin1Char('.') + ending;
    const QString last = dotted.takeLast();
    return dotted.isEmpty() ? last : tr("%1 or %2").arg(dotted.join(QStringLiteral(", ")), last);
}

QString reasonAgainst(const QString& path, const QStringList& endings)
{
    const QFileInfo info(path);
    if (!info.exists())
        return tr("there is no such file");
    if (info.isDir())
        return tr("it is a folder, and a file was expected");
    if (!endings.contains(info.suffix().toLower()))
        return tr("its name was expected to end in %1").arg(endingsText(endings));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("it cannot be read (%1)").arg(file.errorString());
    if (info.isFile() && info.size() == 0)
        return tr("it is empty, and a scene or model was expected");
    return {};
}

} // namespace

QString scopix::cannotOpen(const QString& path, const QString& reason)
{
    return tr("“%1” cannot be opened: %2.").arg(QDir::toNativeSeparators(path), reason);
}

QString scopix::checkFile(const QString& path, const QStringList& endings)
{
    const QString reason = reasonAgainst(path, endings);
    return reason.isEmpty() ? QString() : cannotOpen(path, reason);
}

QString scopix::checkBinaryGltf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cannotOpen(path, file.errorString());
    const QByteArray head = file.read(12);
    if (!head.startsWith("glTF"))
        return cannotOpen(path, tr("it is no binary glTF file, which starts with the four letters “glTF”"));
    const auto promised = head.size() == 12 ? qFromLittleEndian<quint32>(head.constData() + 8) : 12;
    if (file.size() < promised)
        return cannotOpen(path, tr("it ends after %1 of the %2 bytes that its header announces")
                                    .arg(file.size())
                                    .arg(promised));
    return {};
}
