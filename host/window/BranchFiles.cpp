// SPDX-License-Identifier: MIT
#include "window/BranchFiles.h"

#include "document/SceneDocument.h"
#include "document/TexturePaths.h"
#include "support/LongWork.h"
#include "support/OutputFile.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"
#include "window/NodeEditing.h"
#include "window/OtherFile.h"

#include <scopix/SpxSentence.h>
#include <xsg/files/BranchCopy.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/support/WorkPieces.h>

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
    , m_file(new OtherFile(window, notifier, this))
{
}

void BranchFiles::askAndInsert()
{
    const QString path = m_file->ask(tr("Insert File"));
    if (!path.isEmpty())
        insert(path);
}

void BranchFiles::insert(const QString& path)
{
    m_file->read(path, [this, path](const SoRef<SoNode>& scene, const QStringList& notes) {
        for (const QString& note : notes)
            UserNotifier::note(path, note);
        inserted(scene.get(), path);
    });
}

void BranchFiles::inserted(SoNode* root, const QString& path)
{
    const SoRef<SoNode> kept(root);
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
    QString problem;
    const bool isDone = LongWork::runStill(&m_window, tr("Saving “%1”…").arg(QFileInfo(path).fileName()),
                                           branch, [&] { problem = write(branch, path); });
    if (!isDone)
        m_notifier.info(tr("Saving “%1” was cancelled.").arg(path));
    else if (problem.isEmpty())
        m_notifier.info(tr("“%1” was saved as “%2”.").arg(nodeText(*branch), path));
    else
        m_notifier.error(problem);
    return isDone && problem.isEmpty();
}

// Returns a sentence where it cannot be written.
QString BranchFiles::write(SoNode* branch, const QString& path)
{
    const int phases = 2;
    const QString reason = reasonAgainstWriting(path, {SceneDocument::sceneEnding()});
    // A copy, whose names of pictures can be those that lead to them from there.
    const SoRef<SoNode> copy =
        reason.isEmpty() ? xsg::copyBranch(branch, xsg::partOf(LongWork::goOn, 0, phases)) : SoRef<SoNode>();
    if (!copy)
        return tr("The branch “%1” cannot be written to “%2”: %3.")
            .arg(nodeText(*branch), path,
                 reason.isEmpty() ? tr("something in it is of a kind that cannot be copied") : reason);
    movePictures(copy.get(), QFileInfo(path).absolutePath());
    SbSentence error;
    SoSceneFile::write(copy.get(), QFile::encodeName(path).toStdString(), error,
                       xsg::partOf(LongWork::goOn, 1, phases));
    return SpxSentence::translated(error);
}

} // namespace scopix
