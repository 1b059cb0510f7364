// SPDX-License-Identifier: MIT
#include "window/DefaultScene.h"

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>

#include <QFile>

namespace scopix
{

SoRef<SoNode> makeDefaultScene()
{
    QFile file(QStringLiteral(":/scopix/scenes/welcome.xsg"));
    file.open(QIODevice::ReadOnly);
    std::string error; // reported by the reader
    const SoRef<SoNode> scene =
        SoSceneFile::readText(file.readAll().toStdString(), file.fileName().toStdString(), error);
    return scene ? scene : SoRef<SoNode>(new SoSeparator);
}

bool isDefaultScene(const SoNode* root)
{
    return root && root->getName() == SbName("Welcome");
}

} // namespace scopix
