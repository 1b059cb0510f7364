// SPDX-License-Identifier: MIT
#include "document/TexturePaths.h"

#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/properties/SoTexture2.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unordered_set>
#include <vector>

namespace scopix
{

namespace
{

template <class Visit>
void forEachTexture(SoNode* root, Visit visit)
{
    std::unordered_set<const SoNode*> shared;
    std::vector<SoNode*> pending{root};
    while (!pending.empty()) {
        SoNode* node = pending.back();
        pending.pop_back();
        if (node->getRefCount() > 1 && !shared.insert(node).second)
            continue; // seen already; what has one reference is met once
        if (node->getTypeId() == SoTexture2::getClassTypeId())
            visit(static_cast<SoTexture2&>(*node));
        if (SoGroup* group = node->asGroup())
            pending.insert(pending.end(), group->getChildren().begin(), group->getChildren().end());
    }
}

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
