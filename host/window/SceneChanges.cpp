// SPDX-License-Identifier: MIT
#include "window/SceneChanges.h"

#include "changes/ChangesPanel.h"
#include "changes/FileComparison.h"
#include "changes/SceneEdits.h"
#include "document/SceneDocument.h"
#include "services/HostServices.h"
#include "support/LongWork.h"
#include "support/UserNotifier.h"
#include "window/OtherFile.h"
#include "window/PatchActs.h"
#include "window/SceneFiles.h"

#include <QAction>
#include <QDockWidget>
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
    , m_notifier(notifier)
    , m_file(new OtherFile(window, notifier, this))
    , m_panel(new ChangesPanel(services))
    , m_patches(new PatchActs(window, services, files, *m_panel, notifier, this))
    , m_count(new QToolButton)
{
    m_count->setObjectName(QStringLiteral("changesCount"));
    m_count->setAutoRaise(true);
    m_count->setToolTip(tr("What you have changed since the scene was opened"));
    m_count->hide();
    m_count->setMaximumHeight(
        window.statusBar()->fontMetrics().height()); // the bar never grows, so the view never shrinks
    window.statusBar()->addPermanentWidget(m_count);
    connect(m_count, &QToolButton::clicked, this, &SceneChanges::show);
    connect(m_panel, &ChangesPanel::said, &notifier, &UserNotifier::info);
    connect(&services.preview(), &HostPreview::formerShown, this,
            [this] { emit getEdits().ChangeSource::changed(); });
    connect(&files.getScenes(), &OpenScenes::rootChanged, this, &SceneChanges::showFront);
    connect(&services.history(), &UndoHistory::acted, this, [this] {
        if (m_comparison)
            m_comparison->noteEdit();
    });
    makeMenu();
    showFront();
}

SceneEdits& SceneChanges::getEdits() const
{
    return m_files.getScenes().getFront().getEdits();
}

SceneDocument& SceneChanges::document() const
{
    return m_files.getDocument();
}

// Another scene was opened, or has come to the front.
void SceneChanges::showFront()
{
    delete m_comparison;
    connect(&getEdits(), &ChangeSource::changed, this, &SceneChanges::follow, Qt::UniqueConnection);
    m_panel->setSource(&getEdits());
    showSource();
    follow();
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
    m_again = menu.addAction(tr("Compare A&gain"), this, [this] { compareAgain(); });
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
            [this, reapply] { reapply->setEnabled(!document().getPath().isEmpty()); });
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

void SceneChanges::start()
{
    showEdits();
    m_files.getScenes().getFront().startChanges();
}

xsg::SceneChanges SceneChanges::takeChanges()
{
    getEdits().update();
    const ChangeKeys& all = getEdits().list();
    return getEdits().makePatch({all.begin(), all.end()});
}

void SceneChanges::reloadAndReapply()
{
    m_services.preview().showPresent();
    m_services.history().endStep();
    const xsg::SceneChanges mine = takeChanges();
    const QString name = tr("your changes to %1").arg(document().getTitle());
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
    const QString path = m_file->ask(tr("Compare With"), QFileInfo(document().getPath()).path());
    if (!path.isEmpty())
        compareWith(path);
}

void SceneChanges::compareWith(const QString& path)
{
    m_file->read(path, [this, path](const SoRef<SoNode>& scene, const QStringList& /*notes*/) {
        compared(scene.get(), path);
    });
}

void SceneChanges::compared(SoNode* other, const QString& path)
{
    m_services.preview().showPresent();
    const QString name = QFileInfo(path).fileName();
    auto comparison = std::make_unique<FileComparison>(document().getRoot(), other, name);
    if (!compare(*comparison))
        return;
    showEdits();
    comparison->setParent(this);
    m_comparison = comparison.release();
    m_panel->setSource(m_comparison);
    showSource();
    show();
}

// False where the user cancels it, which is told.
bool SceneChanges::compare(FileComparison& comparison)
{
    QWidget* window = m_notifier.isAttended() ? &m_window : nullptr;
    const bool isDone = LongWork::runStill(window, tr("Comparing…"), document().getRoot(),
                                           [&] { comparison.compareAgain(LongWork::goOn); });
    if (!isDone)
        m_notifier.info(tr("The comparison was cancelled; the list is as it was."));
    return isDone;
}

void SceneChanges::compareAgain()
{
    compare(*m_comparison);
}

void SceneChanges::showEdits()
{
    if (!m_comparison)
        return;
    m_panel->setSource(&getEdits());
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
    getEdits().update();
    const int count = static_cast<int>(getEdits().list().size());
    m_count->setText(count == 1 ? tr("1 change") : tr("%L1 changes").arg(count));
    m_count->setVisible(count > 0);
    if (m_dock) {
        m_dock->setWindowTitle(count > 0 ? tr("Changes ●") : tr("Changes"));
        m_dock->toggleViewAction()->setText(tr("Changes"));
    }
    emit changed();
}

} // namespace scopix
