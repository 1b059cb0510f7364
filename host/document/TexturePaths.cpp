// SPDX-License-Identifier: MIT
#include "document/TexturePaths.h"

#include "document/Textures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace scopix
{

namespace
{

// Empty where it is to stay as it is.
QString movedName(const QString& name, const QString& from, const QString& to)
{
    if (name.isEmpty() || QFileInfo(name).isAbsolute())
        return {};
    const QString path = from.isEmpty() ? QDir::current().filePath(name) : QDir(from).filePath(name);
    return QFileInfo::exists(path) ? QDir(to).relativeFilePath(path) : QString();
}

} // namespace

void setPictureFolder(SoNode* root, const QString& folder)
{
    const std::string encoded = QFile::encodeName(folder).toStdString();
    forEachTexture(root, [&](SoTexture2& texture) { texture.setFolder(encoded); });
}

void setPictureFolder(const std::vector<SoTexture2*>& textures, const QString& folder)
{
    const std::string encoded = QFile::encodeName(folder).toStdString();
    for (SoTexture2* texture : textures)
        texture->setFolder(encoded);
}

void movePictures(SoNode* root, const QString& folder)
{
    const std::string encoded = QFile::encodeName(folder).toStdString();
    forEachTexture(root, [&](SoTexture2& texture) {
        if (texture.getFolder() == encoded)
            return;
        const QString name = QFile::decodeName(texture.fileName.getValue().str().c_str());
        const QString moved = movedName(name, QFile::decodeName(texture.getFolder().c_str()), folder);
        texture.setFolder(encoded);
        if (!moved.isEmpty() && moved != name)
            texture.fileName.setValue(SbString(QFile::encodeName(moved).toStdString()));
    });
}

} // namespace scopix
