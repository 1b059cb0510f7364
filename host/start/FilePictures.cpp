// SPDX-License-Identifier: MIT
#include "start/FilePictures.h"

#include "settings/UserSettings.h"
#include "support/InputFile.h"
#include "support/OutputFile.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>

namespace scopix
{

namespace
{

constexpr qint64 LargestPicture = 1 << 20;

QString nameOf(const QString& file)
{
    const QByteArray hash = QCryptographicHash::hash(file.toUtf8(), QCryptographicHash::Sha1);
    return QString::fromLatin1(hash.toHex()) + QStringLiteral(".png");
}

QImage middleOf(const QImage& picture, const QSize& size)
{
    const QImage scaled = picture.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    return scaled.copy(
        {QPoint((scaled.width() - size.width()) / 2, (scaled.height() - size.height()) / 2), size});
}

} // namespace

QString FilePictures::standardFolder()
{
    return UserSettings::path(QStringLiteral("pictures"));
}

FilePictures::FilePictures(QString folder)
    : m_folder(std::move(folder))
{
}

QString FilePictures::pathOf(const QString& file) const
{
    return QDir(m_folder).filePath(nameOf(file));
}

QString FilePictures::keep(const QString& file, const QImage& picture) const
{
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    middleOf(picture, size()).save(&buffer, "PNG");
    QDir().mkpath(m_folder);
    return replaceFile(pathOf(file), content);
}

QImage FilePictures::find(const QString& file) const
{
    QByteArray content;
    const bool isRead = readFile(pathOf(file), LargestPicture, content).isEmpty();
    const QImage picture = isRead ? QImage::fromData(content, "PNG") : QImage();
    return picture.size() == size() ? picture : QImage();
}

void FilePictures::keepOnly(const QStringList& files) const
{
    QStringList names;
    for (const QString& file : files)
        names += nameOf(file);
    QDir folder(m_folder);
    for (const QString& name : folder.entryList({QStringLiteral("*.png")}, QDir::Files)) {
        if (!names.contains(name))
            folder.remove(name);
    }
}

} // namespace scopix
