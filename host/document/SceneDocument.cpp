// SPDX-License-Identifier: MIT
#include "document/SceneDocument.h"

#include "document/TexturePaths.h"
#include "model/ModelFormats.h"
#include "services/HostServices.h"
#include "support/OutputFile.h"

#include <xsg/files/SoSceneFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace scopix
{

SceneDocument::SceneDocument(HostServices& services)
    : m_services(services)
{
    connect(&services.history(), &UndoHistory::acted, this, &SceneDocument::acted);
    connect(&services.undoStack(), &QUndoStack::cleanChanged, this, &SceneDocument::stateChanged);
}

SceneDocument::~SceneDocument()
{
    m_services.undoStack().disconnect(this);
    m_services.history().disconnect(this);
}

QString SceneDocument::sceneEnding()
{
    return QStringLiteral("xsg");
}

QStringList SceneDocument::fileExtensions()
{
    return QStringList(sceneEnding()) + modelEndings();
}

void SceneDocument::begin(SoNode* root, const QString& path, const QString& title)
{
    if (!path.isEmpty())
        setPictureFolder(root, QFileInfo(path).absolutePath());
    replaceRoot(root, false);
    setState(path, title);
}

void SceneDocument::beginExternal(SoNode* root, const QString& title)
{
    replaceRoot(root, true);
    setState({}, title);
}

void SceneDocument::replaceRoot(SoNode* root, bool isExternal)
{
    m_services.clearSelection();
    m_services.history().clear();
    m_services.undoStack().setClean();
    const SoRef<SoNode> before = m_root;
    m_root = SoRef<SoNode>(root);
    m_isExternal = isExternal;
    emit rootChanged(root);
}

void SceneDocument::beginModified(SoNode* root, const QString& path, const QString& title)
{
    begin(root, path, title);
    m_services.undoStack().resetClean();
}

bool SceneDocument::hasSceneFile() const
{
    return QFileInfo(m_path).suffix().toLower() == sceneEnding();
}

bool SceneDocument::isModified() const
{
    return !m_isExternal && !m_services.undoStack().isClean();
}

QString SceneDocument::save(const QString& path)
{
    m_services.history().settle();
    const UserInput::Scope scope(m_services.history().input(), UserInput::Scope::Other);
    // A link stays one; what it leads to is replaced.
    const QFileInfo target(path);
    const QString real = target.isSymLink() && target.exists() ? target.canonicalFilePath() : path;
    const QString reason = reasonAgainstWriting(real, {sceneEnding()});
    if (!reason.isEmpty())
        return tr("The scene “%1” cannot be written: %2.").arg(path, reason);
    if (!m_isExternal && QFileInfo(real).dir().exists())
        movePictures(m_root.get(), QFileInfo(real).absolutePath());
    std::string error;
    if (!SoSceneFile::write(m_root.get(), QFile::encodeName(real).toStdString(), error))
        return QString::fromStdString(error);
    if (!m_isExternal)
        adoptFile(path);
    return {};
}

void SceneDocument::adoptFile(const QString& path)
{
    m_services.undoStack().setClean();
    setState(path, QFileInfo(path).fileName());
}

void SceneDocument::setState(const QString& path, const QString& title)
{
    // The path outlives the folder that the program was started in: it is kept for recovery.
    m_path = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
    m_title = title;
    emit stateChanged();
}

void SceneDocument::acted()
{
    ++m_editCount;
    emit edited();
}

} // namespace scopix
