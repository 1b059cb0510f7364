// SPDX-License-Identifier: MIT
#include "window/SceneChanges.h"

#include "changes/ChangesPanel.h"
#include "changes/FileComparison.h"
#include "changes/SceneEdits.h"
#include "document/SceneDocument.h"
#include "import/AnyImport.h"
#include "model/FileChecks.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/PatchActs.h"
#include "window/SceneFiles.h"

#include <QAction>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeView>

namespace scopix
{

SceneChanges::SceneChanges(QMainWindow& window, HostServices& services, SceneFiles& files,
                           UserNotifier& notifier)
    : QObject(&window)
    , m_window(window)
    , m_services(services)
    , m_files(files)
    , m_document(files.getDocument())
    , m_notifier(notifier)
    , m_edits(new SceneEdits(services.history(), this))
    , m_panel(new ChangesPanel(services))
    , m_patches(new PatchActs(window, services, m_document, *m_panel, notifier, this))
    , m_count(new QToolButton)
{
    m_edits->setHold([&services] { return services.preview().isShowingFormer(); });
    m_panel->setSource(m_edits);
    m_count->setObjectName(QStringLiteral("changesCount"));
    m_count->setAutoRaise(true);
    m_count->setToolTip(tr("What you have changed since the scene was opened"));
    m_count->hide();
    m_count->setMaximumHeight(
        window.statusBar()->fontMetrics().height()); // the bar never grows, so the view never shrinks
    window.statusBar()->addPermanentWidget(m_count);
    connect(m_count, &QToolButton::clicked, this, &SceneChanges::show);
    connect(m_panel, &ChangesPanel::said, &notifier, &UserNotifier::info);
    connect(m_edits, &ChangeSource::changed, this, &SceneChanges::follow);
    connect(&services.preview(), &HostPreview::formerShown, m_edits, &ChangeSource::changed);
    connect(&m_document, &SceneDocument::rootChanged, this, &SceneChanges::start);
    connect(&services.history(), &UndoHistory::acted, this, [this] {
        if (m_comparison)
            m_comparison->noteEdit();
    });
    makeMenu();
}

void SceneChanges::makeMenu()
{
    QMenu& menu = m_panel->getMenu();
    menu.addAction(tr("Wr&ite Patch…"), m_patches, &PatchActs::askAndSave);
    menu.addAction(tr("&Copy as Patch"), m_patches, &PatchActs::copy);
    menu.addAction(tr("Copy as C&++"), m_patches, &PatchActs::copyCpp);
    menu.addAction(tr("Copy as Sce&ne"), m_patches, &PatchActs::copyScene);
    menu.addSeparator();
    menu.addAction(tr("Compare &With…"), this, &SceneChanges::askAndCompare);
    m_again = menu.addAction(tr("Compare A&gain"), this, [this] { m_comparison->compareAgain(); });
    m_back = menu.addAction(tr("&Back to What You Changed"), this, &SceneChanges::showEdits);
    m_start = menu.addAction(tr("&Start Again from Here"), this, &SceneChanges::start);
    showSource();
}

void SceneChanges::fillMenu(QMenu& menu)
{
    menu.addAction(tr("Compare &With…"), this, &SceneChanges::askAndCompare, Qt::Key_F6);
    menu.addAction(tr("Save Changes as &Patch…"), m_patches, &PatchActs::askAndSave, Qt::SHIFT + Qt::Key_F6);
    menu.addAction(tr("App&ly Patch…"), m_patches, &PatchActs::askAndApply, Qt::CTRL + Qt::Key_F6);
    QAction* reapply = menu.addAction(tr("Reload and Reappl&y"), this, &SceneChanges::reloadAndReapply);
    reapply->setShortcut(Qt::Key_F5);
    reapply->setToolTip(tr("Opens the file as it is by now, and makes your changes once more"));
    connect(&menu, &QMenu::aboutToShow, reapply,
            [this, reapply] { reapply->setEnabled(!m_document.getPath().isEmpty()); });
}

SceneChanges::~SceneChanges() = default;

void SceneChanges::setDock(QDockWidget* dock)
{
    m_dock = dock;
}

void SceneChanges::show()
{
    m_dock->show();
    m_dock->raise();
    m_panel->getView().setFocus();
}

// Saving does not start it again (decisions.md: changes-since-opening).
void SceneChanges::start()
{
    showEdits();
    m_edits->begin(m_document.getRoot(), tr("the scene as it was opened"));
}

xsg::SceneChanges SceneChanges::takeChanges()
{
    m_edits->update();
    const ChangeKeys& all = m_edits->list();
    return m_edits->makePatch({all.begin(), all.end()});
}

void SceneChanges::reloadAndReapply()
{
    m_services.preview().showPresent();
    m_services.history().endStep();
    const xsg::SceneChanges mine = takeChanges();
    const QString name = tr("your changes to %1").arg(m_document.getTitle());
    // Where it cannot be opened, what was open stays.
    auto once = std::make_shared<QMetaObject::Connection>();
    *once = connect(&m_files, &SceneFiles::opened, this, [this, once, mine, name](bool good) {
        disconnect(*once);
        if (good && !mine.empty())
            m_patches->apply(mine, name);
    });
    m_files.reload();
}

// --- Another file

void SceneChanges::askAndCompare()
{
    QStringList patterns;
    for (const QString& ending : SceneDocument::fileExtensions())
        patterns << QStringLiteral("*.") + ending;
    const QString path = QFileDialog::getOpenFileName(
        &m_window, tr("Compare With"), QFileInfo(m_document.getPath()).path(),
        tr("Scenes and models (%1);;All files (*)").arg(patterns.join(QLatin1Char(' '))));
    if (!path.isEmpty())
        compareWith(path);
}

void SceneChanges::compareWith(const QString& path)
{
    if (m_import)
        m_import->cancel();
    const QString error = checkFile(path, SceneDocument::fileExtensions());
    if (!error.isEmpty())
        return m_notifier.error(error);
    m_import = makeImport(path, &m_window, this,
                          [this, path](const SoRef<SoNode>& scene) { compared(scene.get(), path); });
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

void SceneChanges::forgetImport()
{
    if (m_import)
        m_import->deleteLater();
    m_import.clear();
}

void SceneChanges::compared(SoNode* other, const QString& path)
{
    const SoRef<SoNode> kept(other);
    forgetImport();
    showEdits();
    m_services.preview().showPresent();
    m_comparison = new FileComparison(m_document.getRoot(), other, QFileInfo(path).fileName(), this);
    m_panel->setSource(m_comparison);
    showSource();
    show();
}

void SceneChanges::showEdits()
{
    if (!m_comparison)
        return;
    m_panel->setSource(m_edits);
    delete m_comparison;
    showSource();
}

bool SceneChanges::isComparing() const
{
    return m_comparison;
}

void SceneChanges::showSource()
{
    m_again->setVisible(m_comparison);
    m_back->setVisible(m_comparison);
    m_start->setVisible(!m_comparison);
}

void SceneChanges::follow()
{
    m_edits->update();
    const int count = static_cast<int>(m_edits->list().size());
    m_count->setText(count == 1 ? tr("1 change") : tr("%L1 changes").arg(count));
    m_count->setVisible(count > 0);
    if (m_dock) {
        m_dock->setWindowTitle(count > 0 ? tr("Changes ●") : tr("Changes"));
        m_dock->toggleViewAction()->setText(tr("Changes"));
    }
    emit changed();
}

} // namespace scopix
