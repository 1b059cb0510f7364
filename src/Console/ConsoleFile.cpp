// SPDX-License-Identifier: MIT
#include "ConsoleFile.h"

#include <xsg/support/FileReplacement.h>

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStringList>

bool consoleFile::mayBeWritten(const QString& path)
{
    static const QStringList otherKinds{
        QStringLiteral("xsg"),  QStringLiteral("xml"), QStringLiteral("json"), QStringLiteral("ini"),
        QStringLiteral("conf"), QStringLiteral("so"),  QStringLiteral("gltf"), QStringLiteral("glb"),
        QStringLiteral("obj"),  QStringLiteral("mtl"), QStringLiteral("stl"),  QStringLiteral("ply"),
        QStringLiteral("dae"),  QStringLiteral("fbx")};
    const QString ending = QFileInfo(path).suffix().toLower();
    return !otherKinds.contains(ending) &&
           !QImageReader::supportedImageFormats().contains(ending.toLatin1()) &&
           xsg::reasonAgainstReplacing(QFile::encodeName(path).toStdString()).empty();
}
