// SPDX-License-Identifier: MIT
#include "window/BranchFiles.h"

#include "document/SceneDocument.h"
#include "document/TexturePaths.h"
#include "import/AnyImport.h"
#include "model/FileChecks.h"
#include "structure/BranchCopy.h"
#include "support/LongWork.h"
#include "support/OutputFile.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"
#include "window/NodeEditing.h"

#include <xsg/files/SoSceneFile.h>

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

namespace scopix
{

BranchFiles::BranchFiles(QWidget& window, NodeEditing& editing, UserNotifier& notifier)
    : QObject(&window)
    , m_window(window)
    , m_editing(editing)
    , m_notifier(notifier)
{
}

void BranchFiles::askAndInsert()
{
    QStringList patterns;
    for (const QString& ending : SceneDocument::fileExtensions())
        patterns << QStringLiteral("*.") + ending;
    const QString path = QFileDialog::getOpenFileName(
        &m_window, tr("Insert File"), {},
        tr("Scenes and models (%1);;All files (*)").arg(patterns.join(QLatin1Char(' '))));
    if (!path.isEmpty())
        insert(path);
}

void BranchFiles::insert(const QString& path)
{
    if (m_import)
        m_import->cancel();
    const QString error = checkFile(path, SceneDocument::fileExtensions());
    if (!error.isEmpty())
        return m_notifier.error(error);
    m_import = makeImport(path, &m_window, this,
                          [this, path](const SoRef<SoNode>& scene) { inserted(scene.get(), path); });
    connect(m_import, &FileImport::failed, this, [this](const QString& sentence) {
        forgetImport();
        m_notifier.error(sentence);
    });
    connect(m_import, &FileImport::cancelled, this, [this, path] {
        forgetImport();
        m_notifier.info(tr("Reading “%1” was cancelled.").arg(path));
    });
    m_import->start(path);
}

void BranchFiles::forgetImport()
{
    if (m_import)
        m_import->deleteLater();
    m_import.clear();
}

void BranchFiles::inserted(SoNode* root, const QString& path)
{
    const SoRef<SoNode> kept(root);
    for (const QString& note : m_import->notes())
        UserNotifier::note(path, note);
    forgetImport();
    setPictureFolder(root, QFileInfo(path).absolutePath());
    // Some formats have no names, for which the reader of models puts something in angle brackets.
    if (root->getName().getLength() == 0 || root->getName().getString()[0] == '<')
        root->setName(toName(QFileInfo(path).completeBaseName()));
    m_editing.insert({kept}, tr("Insert “%1”").arg(QFileInfo(path).fileName()));
}

void BranchFiles::askAndSave()
{
    const Paths paths = m_editing.selected();
    if (paths.isEmpty())
        return m_notifier.info(tr("No node is selected: select one in the tree or in the view first."));
    SoNode* branch = paths.last().getTail();
    const QString name = nodeText(*branch).replace(QLatin1Char('/'), QLatin1Char('_'));
    const QString path = QFileDialog::getSaveFileName(&m_window, tr("Save Branch As"),
                                                      name + QLatin1Char('.') + SceneDocument::sceneEnding(),
                                                      tr("Scenes (*.%1)").arg(SceneDocument::sceneEnding()));
    if (!path.isEmpty())
        save(branch, path);
}

bool BranchFiles::save(SoNode* branch, const QString& path)
{
    const QString reason = reasonAgainstWriting(path, {SceneDocument::sceneEnding()});
    // A copy, whose names of pictures can be those that lead to them from there.
    const SoRef<SoNode> copy = reason.isEmpty() ? copyBranch(branch) : SoRef<SoNode>();
    if (!copy) {
        m_notifier.error(
            tr("The branch “%1” cannot be written to “%2”: %3.")
                .arg(nodeText(*branch), path,
                     reason.isEmpty() ? tr("something in it is of a kind that cannot be copied") : reason));
        return false;
    }
    movePictures(copy.get(), QFileInfo(path).absolutePath());
    std::string error;
    bool isWritten = false;
    const bool isDone = LongWork::run(&m_window, tr("Saving “%1”…").arg(QFileInfo(path).fileName()), [&] {
        isWritten = SoSceneFile::write(copy.get(), QFile::encodeName(path).toStdString(), error,
                                       [](double part) { LongWork::goOn(part); });
    });
    if (!isDone)
        m_notifier.info(tr("Saving “%1” was cancelled.").arg(path));
    else if (isWritten)
        m_notifier.info(tr("“%1” was saved as “%2”.").arg(nodeText(*branch), path));
    else
        m_notifier.error(QString::fromStdString(error));
    return isWritten;
}

} // namespace scopix
