// SPDX-License-Identifier: MIT
#include "commands/SceneFiles.h"

#include "commands/Output.h"
#include "commands/PostedNotes.h"
#include "document/SceneDocument.h"
#include "document/TexturePaths.h"
#include "export/SceneExport.h"
#include "import/ModelImport.h"
#include "model/FileChecks.h"
#include "support/OutputFile.h"

#include <xsg/files/SoSceneFile.h>
#include <xsg/support/FileReplacement.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>

namespace scopix
{

namespace
{

QString folderOf(const std::string& path)
{
    return QFileInfo(QFile::decodeName(xsg::followLinks(path).c_str())).absolutePath();
}

bool isSceneFile(const std::string& path)
{
    return QFileInfo(QFile::decodeName(path.c_str())).suffix().toLower() == SceneDocument::sceneEnding();
}

bool save(SoNode* root, const std::string& path, std::string& error)
{
    movePictures(root, folderOf(path));
    return SoSceneFile::write(root, path, error);
}

bool exportTo(SoNode* root, const std::string& path, std::string& error)
{
    const SceneExport scene(*root, QFile::decodeName(path.c_str()));
    const QString losses = scene.getLosses().join(QStringLiteral("; "));
    if (!losses.isEmpty())
        warn(QStringLiteral("“%1” leaves out: %2.")
                 .arg(QFile::decodeName(path.c_str()), losses)
                 .toStdString());
    error = scene.write().toStdString();
    return error.empty();
}

void readModel(const std::string& path, LoadedScene& scene)
{
    const QString file = QFile::decodeName(path.c_str());
    const QString reason = checkFile(file, SceneDocument::fileExtensions());
    if (!reason.isEmpty()) {
        scene.error = reason.toStdString();
        return;
    }
    ModelImport import(nullptr);
    QEventLoop loop;
    QObject::connect(&import, &ModelImport::finished, [&](const SoRef<SoSeparator>& root) {
        scene.root = SoRef<SoNode>(root.get());
        loop.quit();
    });
    QObject::connect(&import, &ModelImport::failed, [&](const QString& sentence) {
        scene.error = sentence.toStdString();
        loop.quit();
    });
    import.start(file);
    if (!scene.root && scene.error.empty())
        loop.exec();
    for (const QString& note : import.notes())
        scene.notes.push_back(note.toStdString());
}

} // namespace

LoadedScene loadScene(const std::string& path)
{
    LoadedScene scene;
    const PostedNotes posted(scene.notes);
    if (isSceneFile(path)) {
        scene.root = SoSceneFile::read(path, scene.error);
        if (!scene.root)
            scene.notes.clear(); // the same again
    } else {
        readModel(path, scene);
    }
    if (scene.root)
        setPictureFolder(scene.root.get(), folderOf(path));
    return scene;
}

SoRef<SoNode> loadOrComplain(const std::string& path)
{
    LoadedScene scene = loadScene(path);
    for (const std::string& note : scene.notes)
        warn(note);
    if (!scene.root)
        complain(scene.error);
    // A large scene takes noticeable time to be taken apart; with the process all memory goes at once.
    static auto& kept = *new std::vector<SoRef<SoNode>>;
    kept.push_back(scene.root);
    return scene.root;
}

bool canWriteScene(const std::string& path, FileKinds kinds)
{
    if (path == "-")
        return true;
    QStringList endings{SceneDocument::sceneEnding()};
    if (kinds == FileKinds::ScenesAndModels)
        endings += SceneExport::endings();
    const QString file = QFile::decodeName(path.c_str());
    const QString reason = reasonAgainstWriting(file, endings);
    if (!reason.isEmpty())
        complain(QStringLiteral("“%1” cannot be written: %2.").arg(file, reason).toStdString());
    return reason.isEmpty();
}

bool writeScene(SoNode* root, const std::string& path)
{
    if (path == "-") {
        print(SoSceneFile::writeText(root));
        return finishPrinting();
    }
    std::string error;
    const bool isWritten = isSceneFile(path) ? save(root, path, error) : exportTo(root, path, error);
    if (!isWritten)
        complain(error);
    return isWritten;
}

} // namespace scopix
