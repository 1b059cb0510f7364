// SPDX-License-Identifier: MIT
#include "window/SceneFiles.h"

#include "export/SceneExport.h"
#include "import/ModelImport.h"
#include "import/SceneImport.h"
#include "model/FileChecks.h"
#include "services/HostServices.h"
#include "settings/UserSettings.h"
#include "support/LongWork.h"
#include "support/Printable.h"
#include "support/UserNotifier.h"
#include "undo/TextInput.h"
#include "viewport/NothingToSee.h"
#include "window/ChangedFileQuestion.h"
#include "window/DefaultScene.h"
#include "window/ExportQuestion.h"
#include "window/OtherFile.h"

#include <scopix/SpxSentence.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>

#include <algorithm>
#include <optional>
#include <utility>

namespace scopix
{

SceneFiles::SceneFiles(QWidget& window, HostServices& services, UserNotifier& notifier)
    : m_window(window)
    , m_services(services)
    , m_notifier(notifier)
    , m_scenes(services, notifier)
    , m_recent(UserSettings::windowFile())
{
}

SceneFiles::~SceneFiles() = default;

void SceneFiles::open(const QString& path)
{
    m_row.reset();
    read(path, &m_scenes.getFront());
}

void SceneFiles::openInTab(const QString& path)
{
    m_row.reset();
    readInTab(path);
}

void SceneFiles::openInTabs(const QStringList& paths)
{
    m_row = Row{paths, {}, true};
    openNext();
}

void SceneFiles::openNext()
{
    if (m_row && !m_row->waiting.isEmpty())
        readInTab(m_row->waiting.takeFirst());
}

// One file is open, or will not be.
void SceneFiles::finish(bool good)
{
    if (!m_row)
        return emit opened(good);
    m_row->isGood = m_row->isGood && good;
    if (good && !m_row->first)
        m_row->first = &m_scenes.getFront();
    if (!m_row->waiting.isEmpty()) {
        QMetaObject::invokeMethod(this, &SceneFiles::openNext, Qt::QueuedConnection);
        return;
    }
    const Row row = *std::exchange(m_row, std::nullopt);
    if (row.first)
        m_scenes.bringToFront(*row.first);
    emit opened(row.isGood);
}

OpenScene* SceneFiles::findOpen(const QString& path) const
{
    const std::vector<OpenScene*> all = m_scenes.getAll();
    const auto found = std::find_if(all.begin(), all.end(), [&path](const OpenScene* each) {
        const QString& own = each->getDocument().getPath();
        return !own.isEmpty() && QFileInfo(own) == QFileInfo(path);
    });
    return found == all.end() ? nullptr : *found;
}

void SceneFiles::readInTab(const QString& path)
{
    OpenScene* open = findOpen(path);
    if (!open)
        return read(path, nullptr);
    m_scenes.bringToFront(*open);
    finish(true);
}

// Null: in a place of its own.
void SceneFiles::read(const QString& path, OpenScene* target)
{
    if (m_import)
        m_import->cancel(); // the user has changed their mind
    m_target = target;
    m_isForTab = !target;
    m_droppable = getDocument().getEditCount();
    m_opening = FileStamp(path);
    const QString error = checkFile(path, SceneDocument::fileExtensions());
    if (!error.isEmpty())
        return reportFailure(error);
    const bool isScene = QFileInfo(path).suffix().toLower() == SceneDocument::sceneEnding();
    FileImport* import = isScene ? importScene(path) : importModel(path);
    m_import = import;
    connect(import, &FileImport::failed, this, &SceneFiles::reportFailure);
    connect(import, &FileImport::cancelled, this, [this, path] { cancelled(path); });
    import->start(path);
}

FileImport* SceneFiles::importScene(const QString& path)
{
    auto* import = new SceneImport(&m_window, this);
    connect(import, &SceneImport::finished, this, [this, path, import](const SoRef<SoNode>& scene) {
        fileRead(scene.get(), path, &import->getTextures());
    });
    return import;
}

FileImport* SceneFiles::importModel(const QString& path)
{
    auto* import = new ModelImport(&m_window, this);
    connect(import, &ModelImport::finished, this,
            [this, path](const SoRef<SoSeparator>& scene) { fileRead(scene.get(), path, nullptr); });
    return import;
}

void SceneFiles::fileRead(SoNode* root, const QString& path, const std::vector<SoTexture2*>* textures)
{
    if (!m_isForTab && !m_target)
        return cancelled(path); // its place is closed
    if (m_isForTab)
        m_scenes.add();
    else
        m_scenes.bringToFront(*m_target);
    // The user may have continued to edit while the file was read.
    if (m_isForTab || getDocument().getEditCount() == m_droppable || confirmDiscard())
        show(root, path, textures);
    else
        cancelled(path);
}

void SceneFiles::forgetImport()
{
    if (m_import)
        m_import->deleteLater();
    m_import.clear();
}

void SceneFiles::cancelled(const QString& path)
{
    forgetImport();
    m_reselect = {};
    if (m_row)
        m_row->waiting.clear();
    m_notifier.info(tr("Reading “%1” was cancelled.").arg(path));
    finish(false);
}

void SceneFiles::show(SoNode* root, const QString& path, const std::vector<SoTexture2*>* textures)
{
    const QStringList notes = m_import ? m_import->notes() : QStringList();
    forgetImport(); // later
    const QString name = QFileInfo(path).fileName();
    getDocument().begin(root, path, name, m_opening, textures);
    m_reselect.restore(m_services, root);
    m_reselect = {};
    remember(path);
    for (const QString& sentence : notes)
        UserNotifier::note(name, sentence);
    const QString reason = whyNothingIsSeen(root);
    if (!reason.isEmpty()) {
        UserNotifier::note(name, tr("Nothing of it can be seen: %1.").arg(reason));
        m_notifier.info(tr("Opened “%1”, of which nothing can be seen: %2.").arg(path, reason));
    } else if (!notes.isEmpty()) {
        m_notifier.info(tr("Opened “%1”; the console says what is left out.").arg(path));
    } else {
        m_notifier.info(tr("Opened “%1”.").arg(path));
    }
    finish(true);
}

void SceneFiles::reload()
{
    const SelectionMemo selection(m_services, getDocument().getRoot());
    m_reselect = selection;
    open(getDocument().getPath());
}

void SceneFiles::reportFailure(const QString& sentence)
{
    forgetImport();
    m_reselect = {};
    m_notifier.error(sentence);
    finish(false);
}

void SceneFiles::newScene()
{
    if (confirmDiscard())
        getDocument().begin(makeDefaultScene().get(), {}, tr("Welcome"));
}

void SceneFiles::openAnother(const QString& path)
{
    if (confirmDiscard())
        open(path);
}

QString SceneFiles::askForPath()
{
    return QFileDialog::getOpenFileName(&m_window, tr("Open"), startFolder(), OtherFile::nameFilter());
}

void SceneFiles::askForFile()
{
    const QString path = confirmDiscard() ? askForPath() : QString();
    if (!path.isEmpty())
        open(path);
}

QString SceneFiles::startFolder() const
{
    const QString path =
        getDocument().getPath().isEmpty() ? m_recent.list().value(0) : getDocument().getPath();
    const QString folder = QFileInfo(path).path();
    return QFileInfo(folder).isDir() ? folder : QDir::currentPath();
}

void SceneFiles::askForFileInTab()
{
    const QString path = askForPath();
    if (!path.isEmpty())
        openInTab(path);
}

void SceneFiles::openRecent(const QString& path)
{
    if (isStillThere(path))
        openAnother(path);
}

void SceneFiles::openRecentInTab(const QString& path)
{
    if (isStillThere(path))
        openInTab(path);
}

// Else it is no recent file any more.
bool SceneFiles::isStillThere(const QString& path)
{
    if (QFileInfo::exists(path))
        return true;
    m_recent.remove(path);
    m_notifier.error(
        tr("“%1” does not exist any more and was removed from the list of recent files.").arg(path));
    return false;
}

bool SceneFiles::save()
{
    return getDocument().hasSceneFile() ? saveTo(getDocument().getPath()) : saveAs();
}

bool SceneFiles::saveAs()
{
    QFileDialog dialog(&m_window, tr("Save Scene"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(tr("Scenes (*.%1)").arg(SceneDocument::sceneEnding()));
    dialog.setDefaultSuffix(SceneDocument::sceneEnding());
    const QFileInfo origin(getDocument().getPath().isEmpty() ? getDocument().getTitle()
                                                             : getDocument().getPath());
    dialog.setDirectory(startFolder());
    dialog.selectFile(origin.completeBaseName() + QLatin1Char('.') + SceneDocument::sceneEnding());
    return dialog.exec() == QDialog::Accepted && saveTo(dialog.selectedFiles().value(0));
}

void SceneFiles::exportAs()
{
    TextInput::applyPendingEdit();
    const QString path = askForExport(m_window, getDocument(), startFolder());
    if (!path.isEmpty())
        exportTo(path);
}

void SceneFiles::exportTo(const QString& path)
{
    if (!SceneExport::hasEnding(path)) {
        m_notifier.error(tr("“%1” cannot be exported to: its name must end in %2.")
                             .arg(path, SceneExport::endings().join(QStringLiteral(", "))));
        return;
    }
    getDocument().preview().showPresent(); // as saving does
    const QString what = tr("Exporting “%1”…").arg(QFileInfo(path).fileName());
    const QString cancelled = tr("Exporting “%1” was cancelled.").arg(path);
    std::optional<SceneExport> scene;
    if (!runLong(what, [&] { scene.emplace(*getDocument().getRoot(), path); }))
        return m_notifier.info(cancelled);
    if (m_notifier.isAttended() && !confirmLosses(m_window, path, *scene))
        return;
    QString error;
    if (!runLong(what, [&] { error = scene->write(); }))
        return m_notifier.info(cancelled);
    if (error.isEmpty())
        m_notifier.info(tr("Exported “%1”.").arg(path));
    else
        m_notifier.error(error);
}

bool SceneFiles::saveTo(const QString& path)
{
    TextInput::applyPendingEdit();
    if (SceneExport::hasEnding(path)) {
        exportTo(path);
        return false;
    }
    return mayReplace(path) ? write(path) : resolveConflict();
}

bool SceneFiles::write(const QString& path)
{
    QString error;
    const QString name = QFileInfo(path).fileName();
    if (!runLong(tr("Saving “%1”…").arg(name), [&] { error = getDocument().save(path); })) {
        m_notifier.info(tr("Saving “%1” was cancelled.").arg(path));
        return false;
    }
    if (!error.isEmpty()) {
        m_notifier.error(error);
        return false;
    }
    m_notifier.info(tr("Saved “%1”.").arg(path));
    remember(path);
    return true;
}

// The application around the window may change its scene whenever it gets events.
bool SceneFiles::runLong(const QString& what, const std::function<void()>& work)
{
    QWidget* window = m_notifier.isAttended() ? &m_window : nullptr;
    return getDocument().isExternal() ? LongWork::runStill(window, what, getDocument().getRoot(), work)
                                      : LongWork::run(window, what, work);
}

void SceneFiles::remember(const QString& path)
{
    const QString problem = m_notifier.isAttended() ? m_recent.add(path) : QString();
    if (!problem.isEmpty())
        m_notifier.info(problem); // the file itself is as it should be
}

bool SceneFiles::mayReplace(const QString& path)
{
    const bool isOwn = QFileInfo(path) == QFileInfo(getDocument().getPath());
    return !isOwn || getDocument().checkFile() != SceneDocument::FileState::Changed;
}

bool SceneFiles::resolveConflict()
{
    const QString path = getDocument().getPath();
    if (!m_notifier.isAttended()) {
        m_notifier.error(
            tr("“%1” is not saved: another program has changed it since it was opened.").arg(path));
        return false;
    }
    switch (askAboutChangedFile(m_window, getDocument().getTitle(), getDocument().isModified())) {
    case ChangedFileAnswer::Reload:
        reload();
        return false;
    case ChangedFileAnswer::Reapply:
        emit reapplyRequested();
        return false;
    case ChangedFileAnswer::SaveElsewhere:
        return saveAs();
    case ChangedFileAnswer::Replace:
        return write(path);
    case ChangedFileAnswer::Cancel:
        break;
    }
    return false;
}

bool SceneFiles::confirmClose()
{
    if (!confirmDiscard())
        return false;
    for (OpenScene* each : m_scenes.getAll()) {
        if (each == &m_scenes.getFront() || !each->getDocument().isModified() || !m_notifier.isAttended())
            continue;
        m_scenes.bringToFront(*each);
        if (!confirmDiscard())
            return false;
    }
    if (m_import)
        m_import->cancel();
    for (OpenScene* each : m_scenes.getAll())
        each->getAutosave().drop();
    return true;
}

void SceneFiles::closeScene(OpenScene& scene)
{
    m_scenes.bringToFront(scene);
    if (!confirmDiscard())
        return;
    if (m_scenes.getAll().size() > 1)
        m_scenes.remove(scene);
    else
        getDocument().begin(makeDefaultScene().get(), {}, tr("Welcome"));
}

bool SceneFiles::confirmDiscard()
{
    TextInput::applyPendingEdit();
    const bool may = !getDocument().isModified() || !m_notifier.isAttended() || askWhetherToDrop();
    if (may && m_target == &m_scenes.getFront())
        m_droppable = getDocument().getEditCount();
    return may;
}

bool SceneFiles::askWhetherToDrop()
{
    QMessageBox box(QMessageBox::Question, QApplication::applicationDisplayName(),
                    tr("Save the changes to “%1”?").arg(printable(getDocument().getTitle())),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &m_window);
    box.setObjectName(QStringLiteral("unsavedChanges"));
    box.setInformativeText(tr("Without saving, they are lost."));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    box.setEscapeButton(QMessageBox::Cancel);
    box.setWindowModality(Qt::WindowModal);
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void SceneFiles::enterInteractiveMode()
{
    m_scenes.startKeeping();
    if (getDocument().isExternal())
        return; // recovered edits would take the place of the scene that the application shows
    if (!getDocument().getPath().isEmpty())
        remember(getDocument().getPath());
    offerRecovery();
}

void SceneFiles::offerRecovery()
{
    std::unique_ptr<RecoverySlot> slot = RecoverySlot::findOrphaned(getAutosave().getFolder());
    if (!slot)
        return;
    QMessageBox box(QMessageBox::Question, QApplication::applicationDisplayName(),
                    tr("The last session ended without saving its changes to “%1”. Recover them?")
                        .arg(printable(slot->getOrigin().title)),
                    QMessageBox::NoButton, &m_window);
    box.setObjectName(QStringLiteral("recovery"));
    box.setInformativeText(
        tr("They were kept on %1.").arg(QLocale().toString(slot->getTime(), QLocale::ShortFormat)));
    box.setTextFormat(Qt::PlainText);
    QAbstractButton* yes = box.addButton(tr("&Recover"), QMessageBox::AcceptRole);
    box.addButton(tr("&Discard"), QMessageBox::DestructiveRole);
    box.setWindowModality(Qt::WindowModal);
    box.exec();
    if (box.clickedButton() == yes)
        return recover(std::move(slot));
    if (!box.clickedButton())
        return;
    slot->remove();
    offerRecovery(); // what was open beside it
}

void SceneFiles::recover(std::unique_ptr<RecoverySlot> slot)
{
    auto* import = new SceneImport(&m_window, this);
    m_import = import;
    import->keepNodes();
    // Where it is not recovered, the slot stays for another session.
    const std::shared_ptr<RecoverySlot> kept = std::move(slot);
    connect(import, &FileImport::failed, this, [this, kept](const QString& sentence) {
        forgetImport();
        m_notifier.error(sentence);
    });
    connect(import, &FileImport::cancelled, this, &SceneFiles::forgetImport);
    connect(import, &SceneImport::finished, this, [this, kept, import](const SoRef<SoNode>& scene) {
        recovered(scene.get(), import->getNodes(), kept);
    });
    import->start(kept->scenePath());
}

void SceneFiles::recovered(SoNode* scene, const std::vector<SoNode*>& nodes,
                           const std::shared_ptr<RecoverySlot>& slot)
{
    forgetImport();
    const SbSentence problem = EditJournal::read(slot->journalPath(), slot->getSnapshotId()).apply(nodes);
    const RecoverySlot::Origin origin = slot->getOrigin();
    m_scenes.add();
    // What was edited may not be what the file holds by now.
    const bool isOlder = QFileInfo(origin.path).lastModified() > slot->getTime();
    getDocument().beginModified(scene, origin.path, origin.title,
                                isOlder ? std::optional(FileStamp()) : std::nullopt);
    getAutosave().adopt(slot);
    m_notifier.info(tr("Recovered the unsaved changes to “%1”.").arg(origin.title));
    if (!problem.empty())
        m_notifier.error(tr("The last changes to “%1” could not be recovered: %2")
                             .arg(origin.title, SpxSentence::translated(problem)));
    offerRecovery(); // what was open beside it
}

void SceneFiles::keepEdits(bool withTyping)
{
    if (withTyping)
        TextInput::applyPendingEdit();
    for (OpenScene* each : m_scenes.getAll())
        each->getAutosave().keepNow();
}

} // namespace scopix
