// SPDX-License-Identifier: MIT
#include "window/MainWindow.h"
#include "window/BeforeSwitch.h"

#include "changes/ChangesPanel.h"
#include "changes/SceneEdits.h"
#include "handles/HandleActions.h"
#include "panels/EmptyHint.h"
#include "panels/FieldListView.h"
#include "panels/SceneFinder.h"
#include "panels/ScenePanel.h"
#include "panels/SceneTreeModel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "structure/SceneStates.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"
#include "theme/FocusRing.h"
#include "theme/SvgIcon.h"
#include "undo/HistoryView.h"
#include "viewport/SceneView.h"
#include "viewport/Screenshot.h"
#include "window/BranchFiles.h"
#include "window/ContextMenuKey.h"
#include "window/DefaultScene.h"
#include "window/FieldMenu.h"
#include "window/FileDrop.h"
#include "window/FileMenu.h"
#include "window/FrameMarks.h"
#include "window/FurtherWindows.h"
#include "window/HelpMenu.h"
#include "window/LiveActs.h"
#include "window/NodeByText.h"
#include "window/NodeEditing.h"
#include "window/NodeMenu.h"
#include "window/OnScreen.h"
#include "window/PaletteActs.h"
#include "window/PatchActs.h"
#include "window/PatchesAmongFiles.h"
#include "window/PictureActs.h"
#include "window/PlaybackActs.h"
#include "window/ReloadBar.h"
#include "window/SceneChanges.h"
#include "window/SceneTabs.h"
#include "window/SettingsActs.h"
#include "window/ShownScene.h"
#include "window/ThemeMenu.h"
#include "window/TreeAndView.h"
#include "window/TreeColumns.h"
#include "window/ViewActions.h"
#include "window/ViewDisplay.h"
#include "window/ViewPoints.h"
#include "window/Welcome.h"

#include <xsg/core/SoField.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int SideWidth = 330;
constexpr int MessageMs = 8000;

} // namespace

MainWindow::MainWindow(HostServices& services, UserNotifier& notifier)
    : m_services(services)
    , m_notifier(notifier)
    , m_files(*this, services, notifier)
    , m_states(new SceneStates(this))
    , m_pane(std::make_unique<TreeAndView>(TreeAndView::Parts{*this, services, notifier, *m_states}))
    , m_scenePanel(&m_pane->getPanel())
    , m_tree(&m_pane->getTree())
    , m_view(&m_pane->getView())
    , m_fields(new FieldListView)
    , m_display(std::make_unique<ViewDisplay>(*m_view, *m_states))
{
    setObjectName(QStringLiteral("mainWindow"));
    applyTheme(*this, ThemeMenu::wanted());
    setAcceptDrops(true);
    setDockNestingEnabled(true);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    makeCentre();
    makeDocks();
    makeFileMenu();
    makeEditMenu();
    makeNodeMenu();
    makeViewMenu();
    m_helpMenu = menuBar()->addMenu(tr("&Help"));
    m_help = new HelpMenu(*m_helpMenu, {*this, m_services, m_notifier, [this] { return pluginStates(); }});
    makeGuidance();
    makeToolBar();
    connectSelection();
    new ShownScene({m_files.getScenes(), m_notifier, *m_states, *m_scenePanel, *m_view,
                    m_playback->getPlayback(), m_pane->getPoints().getMarks()},
                   this);
    connect(&m_files.getScenes(), &OpenScenes::stateChanged, this, &MainWindow::showTitle);
    connect(&m_files, &SceneFiles::opened, this,
            [this](bool good) { emit openFinished(m_amongFiles->applyAll() && good); });
    connect(&m_notifier, &UserNotifier::told, this,
            [this](const QString& text) { statusBar()->showMessage(text, MessageMs); });
    auto* reload = new ReloadBar(m_files, *m_view);
    connect(reload, &ReloadBar::compareRequested, m_changes,
            [this] { m_changes->compareWith(m_files.getDocument().getPath()); });
    connect(&m_files, &SceneFiles::reapplyRequested, m_changes, &SceneChanges::reloadAndReapply);
    new FileDrop(*this);
    new OnScreen(*this);
    addContextMenuKey(*this);
    new EmptyHint(*m_fields, tr("Select a node: its fields are listed here."));
    new FieldMenu(*m_fields, m_services);
    new FrameMarks(m_services, m_files, this);
    new FocusRing(*this);
    statusBar()->show();
    resize(firstSize());
    setScene(makeDefaultScene().get(), tr("Welcome"));
}

MainWindow::~MainWindow()
{
    // Nothing may react to what the views emit while they are destroyed.
    m_tree->disconnect(this);
    m_fields->disconnect(this);
    m_view->disconnect(this);
    m_services.disconnect(this);
    m_files.getScenes().disconnect();
}

// No larger than the screen, which on a dense one has few of the pixels that sizes are counted in. Pictures
// drawn off the screen have the same size everywhere.
QSize MainWindow::firstSize() const
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        return sizeHint();
    const QSize frame(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    return sizeHint().boundedTo(screen()->availableSize() - frame);
}

QDockWidget* MainWindow::addDock(QWidget* content, const QString& title, const QString& name,
                                 Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(content);
    addDockWidget(area, dock);
    return dock;
}

void MainWindow::makeCentre()
{
    auto* centre = new QWidget;
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_tabs = new SceneTabs(m_files);
    layout->addWidget(m_tabs);
    layout->addWidget(m_view, 1);
    centre->setFocusProxy(m_view);
    setCentralWidget(centre);
}

void MainWindow::makeDocks()
{
    m_treeDock = addDock(m_scenePanel, tr("Scene"), QStringLiteral("sceneDock"), Qt::LeftDockWidgetArea);
    m_fieldsDock = addDock(m_fields, tr("Fields"), QStringLiteral("fieldsDock"), Qt::LeftDockWidgetArea);
    auto* history = new HistoryView(m_services.history());
    connect(&m_files.getScenes(), &OpenScenes::rootChanged, history, &HistoryView::showStart);
    m_historyDock = addDock(history, tr("History"), QStringLiteral("historyDock"), Qt::LeftDockWidgetArea);
    tabifyDockWidget(m_fieldsDock, m_historyDock);
    m_changes = new SceneChanges(*this, m_services, m_files, m_notifier);
    m_changesDock =
        addDock(&m_changes->getPanel(), tr("Changes"), QStringLiteral("changesDock"), Qt::LeftDockWidgetArea);
    tabifyDockWidget(m_historyDock, m_changesDock);
    m_changes->setDock(m_changesDock);
    m_amongFiles = new PatchesAmongFiles(m_files, m_changes->getPatches(), m_notifier, this);
    m_tree->setChanged([this](const SoNode* node) { return m_changes->getEdits().isChanged(node); });
    connect(m_changes, &SceneChanges::changed, m_tree->viewport(), qOverload<>(&QWidget::update));
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    m_fieldsDock->raise();
    resizeDocks({m_treeDock, m_fieldsDock}, {SideWidth, SideWidth}, Qt::Horizontal);
    resizeDocks({m_treeDock, m_fieldsDock}, {430, 290}, Qt::Vertical);
}

void MainWindow::makeFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    m_openAction = (new FileMenu(*menu, m_files))->getOpenAction();
    menu->addSeparator();
    m_live = std::make_unique<LiveActs>(
        *menu, LiveActs::Parts{*this, m_files, m_services, *m_view, *m_tree, *m_fields, m_notifier});
    m_scenePanel->getFinder().setElsewhere(
        [this](const QString& query, const SceneFinder::Found& found) { return m_live->find(query, found); });
    connect(m_live.get(), &LiveActs::attached, this, &MainWindow::openFinished);
    menu->addSeparator();
    m_changes->fillMenu(*menu);
    menu->addSeparator();
    m_pictures = new PictureActs(
        *menu, *this, [this]() -> SceneView& { return paneInUse().getView(); }, m_notifier);
    menu->addAction(tr("Save Picture of the &Window…"), this, &MainWindow::askForScreenshot,
                    Qt::CTRL + Qt::Key_F12);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &QWidget::close, Qt::CTRL + Qt::Key_Q);
}

void MainWindow::makeEditMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    m_editMenu = menu;
    QUndoStack& stack = m_services.undoStack();
    m_undoAction = stack.createUndoAction(this, tr("Undo"));
    m_undoAction->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_Z));
    m_undoAction->setIcon(svgIcon(QStringLiteral("action-undo"), this));
    m_redoAction = stack.createRedoAction(this, tr("Redo"));
    m_redoAction->setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z));
    m_redoAction->setIcon(svgIcon(QStringLiteral("action-redo"), this));
    menu->addActions({m_undoAction, m_redoAction});
    menu->addSeparator();
    QAction* find = menu->addAction(svgIcon(QStringLiteral("action-find"), this), tr("&Find in the Scene"),
                                    this, &MainWindow::find, QKeySequence::Find);
    find->setObjectName(QStringLiteral("findAction"));
}

void MainWindow::makeNodeMenu()
{
    m_editing = new NodeEditing(m_services, m_files, *m_tree, *m_states, m_notifier, this);
    m_branchFiles = new BranchFiles(*this, *m_editing, m_notifier);
    QMenu* menu = menuBar()->addMenu(tr("&Node"));
    m_nodeMenu = new NodeMenu(*menu, *m_editing, *m_branchFiles, *m_tree, *m_view);
    menu->addSeparator();
    m_pane->fillHandleMenu(*menu->addMenu(tr("Handles in the 3D View")));
}

void MainWindow::makeViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    m_appearanceMenu = menu;
    m_pane->fillViewMenu(*menu);
    m_playback = new PlaybackActs(*menu, *m_view, {m_view, m_tree}, this);
    auto* before = new BeforeSwitch(*this, m_services);
    menu->addAction(before->action());
    before->takeKeyIn(*m_view);
    before->takeKeyIn(*m_tree);
    menu->addSeparator();
    int number = 0;
    for (QDockWidget* dock : {m_treeDock, m_fieldsDock, m_historyDock, m_changesDock}) {
        before->leaveAlone(dock);
        dock->toggleViewAction()->setShortcut(QStringLiteral("Ctrl+W, %1").arg(++number));
        menu->addAction(dock->toggleViewAction());
    }
    m_columnMenu = menu->addMenu(tr("Columns of the T&ree"));
    m_pane->fillColumnMenu(*m_columnMenu);
    menu->addSeparator();
    m_tabs->addTo(*menu);
    menu->addSeparator();
    makeFurtherWindows();
    menu->addSeparator();
    m_toolsMenu = menu->addMenu(tr("&Tools"));
    m_profilesMenu = menu->addMenu(tr("&Profile"));
    m_themeMenu = menu->addMenu(tr("&Colours"));
    new ThemeMenu(*m_themeMenu, *this, m_notifier);
}

void MainWindow::makeFurtherWindows()
{
    m_further = std::make_unique<FurtherWindows>(
        FurtherWindow::Parts{*this, *m_pane, m_files.getScenes(), m_services, m_notifier, *m_states,
                             *m_changes, *m_nodeMenu, *m_appearanceMenu, *m_columnMenu});
    connect(this, &HostWindow::closed, m_further.get(), &FurtherWindows::closeAll);
}

// What leads through all of the above: it comes last.
void MainWindow::makeGuidance()
{
    m_settings = new SettingsActs({*this, *m_view, m_files, m_services, m_notifier, *m_themeMenu},
                                  [this] { return pluginStates(); });
    m_editMenu->addSeparator();
    m_editMenu->addAction(m_settings->getAction());
    m_palette = new PaletteActs(*this, *m_tree, m_services, *m_settings);
    m_helpMenu->insertAction(m_helpMenu->actions().value(0), m_palette->getAction());
    m_welcome = new Welcome({*this, *m_view, *m_tree, m_files, m_services},
                            {m_openAction, m_live->getAttachAction()});
    m_welcome->addTo(*m_helpMenu);
}

void MainWindow::enterInteractiveMode()
{
    m_settings->restoreKeys();
    m_files.enterInteractiveMode();
    m_welcome->enterInteractiveMode();
}

void MainWindow::makeToolBar()
{
    QToolBar* bar = addToolBar(tr("Main"));
    bar->setObjectName(QStringLiteral("mainToolBar"));
    bar->setMovable(false);
    bar->setIconSize({16, 16}); // the grid that the icons are drawn on
    bar->addAction(m_openAction);
    bar->addSeparator();
    bar->addActions({m_undoAction, m_redoAction});
    bar->addSeparator();
    bar->addActions(m_pane->getHandleActions().getModes());
    bar->addSeparator();
    bar->addActions(m_pane->getFramingActs());
    bar->addSeparator();
    bar->addActions(m_pane->getDisplayActs());
}

void MainWindow::connectSelection()
{
    m_pane->linkSelection();
    connect(m_fields, &FieldListView::fieldSelected, this,
            [this](SoField* field) { m_services.select(field); });
    connect(&m_services, &SpxServices::selectedNodeChanged, m_fields, &FieldListView::setContainer);
    connect(&m_services, &SpxServices::selectedFieldChanged, m_fields, &FieldListView::showField);
}

// That of the window that the user works in.
TreeAndView& MainWindow::paneInUse() const
{
    const FurtherWindow* further = m_further->getActive();
    return further ? further->getPane() : *m_pane;
}

void MainWindow::find()
{
    if (FurtherWindow* further = m_further->getActive())
        further->startFinding();
    else
        showFinder();
}

void MainWindow::showFinder()
{
    m_treeDock->show();
    m_treeDock->raise();
    m_scenePanel->startFinding();
}

void MainWindow::findInScene(const QString& query)
{
    showFinder();
    m_scenePanel->find(query);
}

std::pair<const SoCamera*, QSize> MainWindow::viewLook() const
{
    return {&m_view->getCamera(), m_view->size() * m_view->devicePixelRatioF()};
}

SpxSceneDisplay* MainWindow::display()
{
    return m_display.get();
}

void MainWindow::setTreeColumns(const QList<SpxTreeColumnProvider*>& providers)
{
    m_pane->getColumns().setProviders(providers);
    m_further->setTreeColumns(providers);
}

void MainWindow::updateTreeColumns()
{
    m_tree->updateMoreColumns();
    m_further->updateTreeColumns();
}

bool MainWindow::showHelp(const QString& page, const QString& section)
{
    return m_help->show(page, section);
}

std::vector<PluginState> MainWindow::pluginStates() const
{
    return m_pluginStates ? m_pluginStates() : std::vector<PluginState>();
}

void MainWindow::setScene(SoNode* root, const QString& title)
{
    m_files.getDocument().begin(root, {}, title);
}

bool MainWindow::inspect(SoNode* root, const QString& title)
{
    if (m_inspected)
        m_files.getScenes().bringToFront(*m_inspected);
    if (root == getScene() && m_files.getDocument().isExternal())
        return true;
    if (!m_files.confirmDiscard())
        return false;
    m_inspected = &m_files.getScenes().getFront();
    if (root)
        m_files.getDocument().beginExternal(root, title.isEmpty() ? tr("Running Scene") : title);
    else
        setScene(makeDefaultScene().get(), tr("Welcome"));
    return true;
}

void MainWindow::showTitle()
{
    const SceneDocument& document = m_files.getDocument();
    const bool isDeleted = document.getFileState() == SceneDocument::FileState::Deleted;
    const QString title = isDeleted ? tr("%1 (deleted)").arg(document.getTitle()) : document.getTitle();
    setWindowTitle(title + QStringLiteral("[*]")); // Qt adds the mark and the program's name
    setWindowModified(document.isModified());
    setWindowFilePath(document.getPath()); // which plug-ins ask for
}

void MainWindow::openLive(const LiveOrder& order)
{
    m_live->wantNode(order.node);
    if (order.launch.isEmpty())
        m_live->attach(order.attach);
    else
        m_live->launch(order.launch);
}

void MainWindow::openFile(const QString& path)
{
    if (PatchActs::isPatch(path))
        return emit openFinished(m_changes->getPatches().offer(path));
    m_files.open(path);
}

void MainWindow::openFiles(const QStringList& paths)
{
    const QStringList scenes = m_amongFiles->take(paths);
    if (scenes.isEmpty())
        emit openFinished(m_amongFiles->applyAll());
    else
        m_files.openInTabs(scenes);
}

void MainWindow::openAnother(const QString& path)
{
    m_files.openAnother(path);
}

bool MainWindow::selectField(const QString& nodeText, const QString& fieldText)
{
    const SoPath path = pathByText(*m_tree, getScene(), nodeText);
    const SoNode* node = path.getTail();
    if (!node) {
        m_notifier.error(tr("Nothing in the scene has the name or the type “%1”.").arg(nodeText));
        return false;
    }
    SoField* field = node->getField(toName(fieldText));
    if (!field) {
        m_notifier.error(
            tr("“%1”, a %2, has no field “%3”.").arg(nodeText, typeText(node->getTypeId()), fieldText));
        return false;
    }
    m_tree->selectPath(path);
    m_services.select(field);
    return true;
}

bool MainWindow::saveScreenshot(const QString& path)
{
    const QString error = scopix::saveScreenshot(*this, path);
    if (!error.isEmpty())
        m_notifier.error(error);
    return error.isEmpty();
}

bool MainWindow::savePictures(const PictureOrder& order)
{
    return m_pictures->save(order, *m_view);
}

void MainWindow::askForScreenshot()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save Picture"), QStringLiteral("scopix.png"),
                                                      tr("Pictures (*.png)"));
    if (!path.isEmpty())
        saveScreenshot(path);
}

QString MainWindow::emptyHint() const
{
    return tr("Click something in the view or in the tree: its values appear here.");
}

SoPath MainWindow::selectedPath() const
{
    return m_tree->getSelectedPath();
}

SoPath MainWindow::pathTo(const SoNode* node) const
{
    return m_tree->pathTo(node);
}

void MainWindow::setMarkedPoints(const void* owner, const SoPath& place, const std::vector<SbVec3f>& points)
{
    m_pane->getPoints().getMarks().set(owner, place, points);
    m_further->marksChanged();
}

ViewPoints& MainWindow::getViewPoints()
{
    return m_pane->getPoints();
}

HandleTool& MainWindow::getHandles()
{
    return m_pane->getHandles();
}

ViewActions& MainWindow::getViewActions()
{
    return m_pane->getViewActions();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    const auto isFile = [](const QUrl& url) { return url.isLocalFile(); };
    if (!urls.isEmpty() && std::all_of(urls.begin(), urls.end(), isFile))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->accept();
    // From the event loop: the other program waits for the drop to end, and the user may be asked something.
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        paths += url.toLocalFile();
    const bool inTabs = paths.size() > 1 || event->keyboardModifiers() & Qt::ControlModifier;
    QMetaObject::invokeMethod(
        this, [this, paths, inTabs] { openDropped(paths, inTabs); }, Qt::QueuedConnection);
}

// Patches change the scene that shows, which is another one once the files are open.
void MainWindow::openDropped(QStringList paths, bool inTabs)
{
    const auto patches = std::stable_partition(paths.begin(), paths.end(),
                                               [](const QString& path) { return !PatchActs::isPatch(path); });
    std::for_each(patches, paths.end(), [this](const QString& path) { openPatch(path); });
    paths.erase(patches, paths.end());
    if (inTabs && !paths.isEmpty())
        m_files.openInTabs(paths);
    else if (!paths.isEmpty())
        m_files.openAnother(paths.first());
}

void MainWindow::openPatch(const QString& path)
{
    m_changes->getPatches().apply(path);
}

void MainWindow::showEvent(QShowEvent* event)
{
    HostWindow::showEvent(event);
    if (event->spontaneous() || !m_notifier.isAttended())
        return;
    // From the event loop, when this one is there: the last that is shown is the active one.
    QMetaObject::invokeMethod(
        this, [this] { openFurtherAgain(); }, Qt::QueuedConnection);
}

void MainWindow::openFurtherAgain()
{
    if (!isVisible())
        return;
    m_further->openAgain();
    if (!m_further->getAll().isEmpty() && !QApplication::activeModalWidget())
        activateWindow();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_files.confirmClose());
    if (event->isAccepted())
        emit closed();
}

} // namespace scopix
