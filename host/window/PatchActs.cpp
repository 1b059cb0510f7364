// SPDX-License-Identifier: MIT
#include "window/PatchActs.h"

#include "changes/ChangesPanel.h"
#include "changes/ChangesText.h"
#include "changes/PatchCommand.h"
#include "document/PatchFile.h"
#include "services/HostServices.h"
#include "support/LongWork.h"
#include "support/Printable.h"
#include "support/UserNotifier.h"
#include "window/DefaultScene.h"
#include "window/SceneFiles.h"

#include <scopix/SpxSentence.h>

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>

namespace scopix
{

namespace
{

QString nameFilter()
{
    return PatchActs::tr("Patches (*.%1)").arg(patchEnding());
}

} // namespace

PatchActs::PatchActs(QWidget& window, HostServices& services, SceneFiles& files, ChangesPanel& panel,
                     UserNotifier& notifier, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_services(services)
    , m_files(files)
    , m_panel(panel)
    , m_notifier(notifier)
{
}

bool PatchActs::isPatch(const QString& path)
{
    return QFileInfo(path).suffix().toLower() == patchEnding();
}

void PatchActs::askAndSave()
{
    QFileDialog dialog(&m_window, tr("Save Changes as Patch"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(nameFilter());
    dialog.setDefaultSuffix(patchEnding());
    const QFileInfo origin(m_files.getDocument().getPath().isEmpty() ? m_files.getDocument().getTitle()
                                                                     : m_files.getDocument().getPath());
    dialog.setDirectory(origin.path());
    dialog.selectFile(origin.completeBaseName() + QLatin1Char('.') + patchEnding());
    if (dialog.exec() == QDialog::Accepted)
        save(dialog.selectedFiles().value(0));
}

bool PatchActs::save(const QString& path)
{
    m_services.preview().showPresent();
    m_services.history().endStep();
    m_panel.getModel().follow();
    const ChangeKeySet chosen = m_panel.getChosen();
    if (chosen.empty()) {
        m_notifier.info(tr("There is no change that could be saved."));
        return false;
    }
    xsg::SceneChanges patch;
    if (!runLong(tr("Saving “%1”…").arg(QFileInfo(path).fileName()),
                 [&] { patch = m_panel.getModel().getSource()->makePatch(chosen); })) {
        m_notifier.info(tr("Saving “%1” was cancelled.").arg(path));
        return false;
    }
    const QString error = writePatch(path, patch);
    if (error.isEmpty())
        m_notifier.info(tr("Saved the changes as “%1”.").arg(path));
    else
        m_notifier.error(error);
    return error.isEmpty();
}

void PatchActs::askAndApply()
{
    const QString path = QFileDialog::getOpenFileName(
        &m_window, tr("Apply Patch"), QFileInfo(m_files.getDocument().getPath()).path(), nameFilter());
    if (!path.isEmpty())
        apply(path);
}

// Nothing was opened yet.
bool PatchActs::hasNoScene() const
{
    const bool isUntouched = m_files.getDocument().getPath().isEmpty() && !m_files.getDocument().isModified();
    return !m_files.getDocument().getRoot() ||
           (isUntouched && isDefaultScene(m_files.getDocument().getRoot()));
}

bool PatchActs::read(const QString& path, xsg::SceneChanges& changes)
{
    QString error = readPatch(path, changes);
    if (error.isEmpty() && hasNoScene())
        error =
            tr("“%1” is a patch, and no scene is open that it could change: open the one that it was made "
               "for, then drop the patch on the window or choose File ▸ Apply Patch….")
                .arg(printable(path));
    if (!error.isEmpty())
        m_notifier.error(error);
    return error.isEmpty();
}

bool PatchActs::apply(const QString& path)
{
    xsg::SceneChanges changes;
    if (!read(path, changes))
        return false;
    apply(std::move(changes), QFileInfo(path).fileName());
    return true;
}

bool PatchActs::offer(const QString& path, const std::function<void()>& answered)
{
    xsg::SceneChanges changes;
    if (!m_notifier.isAttended())
        return apply(path);
    if (!read(path, changes))
        return false;
    const QString name = QFileInfo(path).fileName();
    auto* box = new QMessageBox(
        QMessageBox::Question, QApplication::applicationDisplayName(),
        tr("Apply the patch “%1” to “%2”?").arg(printable(name), printable(m_files.getDocument().getTitle())),
        QMessageBox::Cancel, &m_window);
    box->setObjectName(QStringLiteral("patchOffer"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(tr("It has %n change(s). What fits is applied, and can be undone as one step.",
                               nullptr, static_cast<int>(changes.size())));
    box->setDefaultButton(box->addButton(tr("&Apply"), QMessageBox::AcceptRole));
    box->setAttribute(Qt::WA_DeleteOnClose);
    // From a further window, another scene may come to the front meanwhile.
    const QPointer<OpenScene> scene(&m_files.getScenes().getFront());
    connect(box, &QMessageBox::accepted, this, [this, scene, changes = std::move(changes), name] {
        if (scene)
            m_files.getScenes().bringToFront(*scene);
        if (scene)
            apply(changes, name);
    });
    if (answered)
        connect(box, &QMessageBox::finished, this, answered, Qt::QueuedConnection);
    box->open();
    return true;
}

void PatchActs::apply(xsg::SceneChanges changes, const QString& name)
{
    if (m_services.preview().refusesEdit() || !m_files.getDocument().getRoot())
        return;
    auto result = std::make_shared<xsg::PatchResult>();
    m_services.history().endStep();
    m_services.executeCommand(new PatchCommand(std::move(changes), m_files.getDocument().getRoot(), result),
                              tr("Apply “%1”").arg(name));
    m_services.history().endStep();
    tell(name, result->applied, result->alreadySo, result->misfits);
}

void PatchActs::tell(const QString& name, int applied, int alreadySo, const std::vector<SbSentence>& misfits)
{
    const QString sentence = tr("“%1”: %2 changes applied, %3 were so already, %4 did not fit.")
                                 .arg(printable(name))
                                 .arg(applied)
                                 .arg(alreadySo)
                                 .arg(misfits.size());
    m_notifier.info(sentence);
    QStringList lines;
    for (const SbSentence& misfit : misfits) {
        lines << SpxSentence::translated(misfit);
        UserNotifier::note(name, lines.last());
    }
    if (misfits.empty() || !m_notifier.isAttended())
        return;
    auto* box = new QMessageBox(QMessageBox::Information, QApplication::applicationDisplayName(), sentence,
                                QMessageBox::Ok, &m_window);
    box->setObjectName(QStringLiteral("patchMisfits"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(tr("What fits is applied, and can be undone as one step."));
    box->setDetailedText(lines.join(QLatin1Char('\n')));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

bool PatchActs::runLong(const QString& what, const std::function<void()>& work)
{
    QWidget* window = m_notifier.isAttended() ? &m_window : nullptr;
    return LongWork::runStill(window, what, m_files.getDocument().getRoot(), work);
}

void PatchActs::put(const std::function<QString()>& makeText, const QString& sentence)
{
    QString text;
    if (!runLong(tr("Copying…"), [&] { text = makeText(); }))
        return m_notifier.info(tr("Copying was cancelled; nothing has changed."));
    if (text.isEmpty())
        return m_notifier.info(tr("There is no change that could be copied so."));
    QApplication::clipboard()->setText(text);
    m_notifier.info(sentence);
}

void PatchActs::copy()
{
    put(
        [this] {
            ChangeSource& source = *m_panel.getModel().getSource();
            return QString::fromStdString(xsg::PatchText::write(source.makePatch(m_panel.getChosen())));
        },
        tr("The changes were copied as a patch."));
}

void PatchActs::copyCpp()
{
    put([this] { return changesAsCpp(*m_panel.getModel().getSource(), m_panel.getChosen()); },
        tr("The changes were copied as C++."));
}

void PatchActs::copyScene()
{
    put([this] { return changesAsScene(*m_panel.getModel().getSource(), m_panel.getChosen()); },
        tr("The changed values were copied as nodes of a scene."));
}

} // namespace scopix
