// SPDX-License-Identifier: MIT
#include "document/SceneDocument.h"

#include "document/TexturePaths.h"
#include "model/GradualRelease.h"
#include "model/ModelFormats.h"
#include "services/HostServices.h"
#include "support/LongWork.h"
#include "support/OutputFile.h"

#include <scopix/SpxSentence.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/support/FileReplacement.h>

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace scopix
{

namespace
{

// The folder of the file itself, which relative names of pictures start from, by whatever link it is opened.
QString folderOf(const QString& path)
{
    const std::string file = xsg::followLinks(QFile::encodeName(path).toStdString());
    return QFileInfo(QFile::decodeName(file.c_str())).absolutePath();
}

} // namespace

SceneDocument::SceneDocument(HostServices& services)
    : m_services(services)
{
    connect(&services.history(), &UndoHistory::acted, this, &SceneDocument::acted);
    connect(&services.undoStack(), &QUndoStack::cleanChanged, this, [this] {
        if (isInFront())
            emit stateChanged();
    });
}

SceneDocument::~SceneDocument()
{
    m_services.undoStack().disconnect(this);
    m_services.history().disconnect(this);
}

void SceneDocument::leave()
{
    m_services.preview().showPresent();
    m_services.clearSelection();
    m_isInFront = false;
    m_shelf = m_services.history().shelve();
}

void SceneDocument::enter()
{
    m_services.history().unshelve(m_shelf);
    m_shelf.reset();
    m_isInFront = true;
}

QString SceneDocument::sceneEnding()
{
    return QStringLiteral("xsg");
}

QStringList SceneDocument::fileExtensions()
{
    return QStringList(sceneEnding()) + modelEndings();
}

void SceneDocument::begin(SoNode* root, const QString& path, const QString& title,
                          const std::optional<FileStamp>& stamp, const std::vector<SoTexture2*>* textures)
{
    if (!path.isEmpty() && textures)
        setPictureFolder(*textures, folderOf(path));
    else if (!path.isEmpty())
        setPictureFolder(root, folderOf(path));
    replaceRoot(root, false);
    setState(path, title, stamp);
}

void SceneDocument::beginExternal(SoNode* root, const QString& title)
{
    replaceRoot(root, true);
    setState({}, title);
}

void SceneDocument::replaceRoot(SoNode* root, bool isExternal)
{
    m_services.preview().showPresent();
    m_services.clearSelection();
    m_services.history().clear();
    m_services.undoStack().setClean();
    SoRef<SoNode> before = m_root;
    m_root = SoRef<SoNode>(root);
    m_isExternal = isExternal;
    emit rootChanged(root);
    if (before)
        releaseGradually(std::move(before));
}

void SceneDocument::beginModified(SoNode* root, const QString& path, const QString& title,
                                  const std::optional<FileStamp>& stamp)
{
    begin(root, path, title, stamp);
    m_services.undoStack().resetClean();
}

bool SceneDocument::hasSceneFile() const
{
    return QFileInfo(m_path).suffix().toLower() == sceneEnding();
}

bool SceneDocument::isModified() const
{
    return !m_isExternal && !(m_shelf ? m_shelf->isClean() : m_services.undoStack().isClean());
}

HostPreview& SceneDocument::preview() const
{
    return m_services.preview();
}

QString SceneDocument::save(const QString& path)
{
    m_services.preview().showPresent();
    m_services.history().settle();
    const UserInput::Scope scope(m_services.history().input(), UserInput::Scope::Other);
    const QString reason = reasonAgainstWriting(path, {sceneEnding()});
    if (!reason.isEmpty())
        return tr("The scene “%1” cannot be written: %2.").arg(path, reason);
    if (!m_isExternal && QFileInfo::exists(folderOf(path)))
        movePictures(m_root.get(), folderOf(path));
    SbSentence error;
    const quint64 edits = m_editCount;
    if (!SoSceneFile::write(m_root.get(), QFile::encodeName(path).toStdString(), error,
                            [](double part) { LongWork::goOn(part); }))
        return SpxSentence::translated(error);
    if (!m_isExternal)
        adoptFile(path);
    if (m_editCount != edits) // by an extension, while it was written
        m_services.undoStack().resetClean();
    return {};
}

void SceneDocument::adoptFile(const QString& path)
{
    m_services.undoStack().setClean();
    setState(path, QFileInfo(path).fileName());
}

void SceneDocument::setState(const QString& path, const QString& title, const std::optional<FileStamp>& stamp)
{
    // The path outlives the folder that the program was started in: it is kept for recovery.
    m_path = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
    m_title = title;
    m_fileState = FileState::AsOpened;
    m_stamp = stamp || m_path.isEmpty() ? stamp.value_or(FileStamp()) : FileStamp(m_path);
    emit stateChanged();
}

SceneDocument::FileState SceneDocument::checkFile()
{
    if (m_path.isEmpty())
        return FileState::AsOpened;
    FileState state = FileState::AsOpened;
    switch (m_stamp.compare(m_path)) {
    case FileStamp::Difference::None:
        break;
    case FileStamp::Difference::Changed:
        state = FileState::Changed;
        break;
    case FileStamp::Difference::Deleted:
        state = FileState::Deleted;
        break;
    }
    if (std::exchange(m_fileState, state) != state)
        emit stateChanged();
    return state;
}

void SceneDocument::acted()
{
    if (!isInFront())
        return;
    ++m_editCount;
    emit edited();
}

} // namespace scopix
