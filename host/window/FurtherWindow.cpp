// SPDX-License-Identifier: MIT
#include "window/FurtherWindow.h"

#include "changes/SceneEdits.h"
#include "panels/SceneFinder.h"
#include "panels/ScenePanel.h"
#include "panels/SceneTreeView.h"
#include "settings/ScreenLayouts.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "structure/MirroredNode.h"
#include "support/UserNotifier.h"
#include "viewport/PointMarks.h"
#include "viewport/SceneView.h"
#include "window/NodeMenu.h"
#include "window/OpenScenes.h"
#include "window/SceneChanges.h"
#include "window/TreeAndView.h"
#include "window/ViewPoints.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>
#include <QWindow>

namespace scopix
{

namespace
{

constexpr int TreeWidth = 320;
constexpr int Offset = 40; // from the window that it opens over
constexpr int MessageMs = 8000;

QString layoutName(int number)
{
    return QStringLiteral("window%1-").arg(number);
}

QLabel* makeNote(QWidget& view, const QString& text)
{
    auto* note = new QLabel(text, &view);
    note->setObjectName(QStringLiteral("elsewhereNote"));
    note->setWordWrap(true);
    note->setAlignment(Qt::AlignCenter);
    note->setAutoFillBackground(true);
    note->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* layout = new QVBoxLayout(&view);
    layout->addWidget(note);
    note->hide();
    return note;
}

} // namespace

FurtherWindow::FurtherWindow(const Parts& parts, int number)
    : QMainWindow(&parts.main)
    , m_parts(parts)
    , m_number(number)
    , m_pane(std::make_unique<TreeAndView>(
          TreeAndView::Parts{*this, parts.services, parts.notifier, parts.states, layoutName(number)}))
    , m_looks(m_pane->getPanel(), m_pane->getView())
    , m_splitter(new QSplitter)
    , m_elsewhere(makeNote(m_pane->getView(), tr("The picture of the program is in the main window.")))
{
    setObjectName(QStringLiteral("furtherWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    m_splitter->addWidget(&m_pane->getPanel());
    m_splitter->addWidget(&m_pane->getView());
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({TreeWidth, sizeHint().width() - TreeWidth});
    m_splitter->setChildrenCollapsible(false);
    setCentralWidget(m_splitter);
    m_pane->getView().setLogsFrames(false);
    m_pane->getView().setAnimated(false);
    SceneTreeView& tree = m_pane->getTree();
    tree.setChanged([this](const SoNode* node) { return m_parts.changes.getEdits().isChanged(node); });
    connect(&parts.changes, &SceneChanges::changed, tree.viewport(), qOverload<>(&QWidget::update));
    m_pane->getPanel().getFinder().setElsewhere(parts.pane.getPanel().getFinder().getElsewhere());
    parts.nodes.serve(tree, m_pane->getView());
    makeMenus();
    shareKeys();
    m_pane->follow(parts.pane);
    followScenes();
    statusBar()->show();
    connect(&parts.notifier, &UserNotifier::told, this,
            [this](const QString& text) { statusBar()->showMessage(text, MessageMs); });
    // As any other window: the main window may lie over it.
    create();
    windowHandle()->setTransientParent(nullptr);
}

FurtherWindow::~FurtherWindow() = default;

// The same menus as the main window's, so that each act is there once; those that look at the scene are its
// own.
void FurtherWindow::makeMenus()
{
    for (QAction* menu : m_parts.main.menuBar()->actions()) {
        if (menu == m_parts.viewMenu.menuAction())
            makeViewMenu();
        else
            menuBar()->addAction(menu);
    }
}

void FurtherWindow::makeViewMenu()
{
    QMenu* menu = menuBar()->addMenu(m_parts.viewMenu.title());
    auto* handles = new QMenu(tr("Handles in the 3D View"), menu);
    m_pane->fillHandleMenu(*handles);
    m_pane->fillViewMenu(*menu);
    menu->addMenu(handles);
    m_pane->fillColumnMenu(*menu->addMenu(m_parts.columnMenu.title()));
    menu->addSeparator();
    menu->addAction(tr("&Close This Window"), this, &QWidget::close, Qt::CTRL + Qt::SHIFT + Qt::Key_W)
        ->setObjectName(QStringLiteral("closeWindowAction"));
    menu->addSeparator();
    const QList<QAction*>& own = m_parts.pane.getActs();
    for (QAction* act : m_parts.viewMenu.actions()) {
        if (!own.contains(act) && act != m_parts.columnMenu.menuAction())
            menu->addAction(act);
    }
}

// What acts while the main window's view or tree has the focus acts here, too.
void FurtherWindow::shareKeys()
{
    const QList<QAction*>& own = m_parts.pane.getActs();
    const auto share = [&own](const QWidget& from, QWidget& to) {
        for (QAction* act : from.actions())
            if (!own.contains(act))
                to.addAction(act);
    };
    share(m_parts.pane.getView(), m_pane->getView());
    share(m_parts.pane.getTree(), m_pane->getTree());
}

void FurtherWindow::followScenes()
{
    OpenScenes& scenes = m_parts.scenes;
    connect(&scenes, &OpenScenes::aboutToLeave, this,
            [this](const OpenScene& scene) { m_looks.keep(scene); });
    connect(&scenes, &OpenScenes::aboutToRemove, this,
            [this](const OpenScene& scene) { m_looks.drop(scene); });
    connect(&scenes, &OpenScenes::rootChanged, this, &FurtherWindow::showScene);
    connect(&scenes, &OpenScenes::stateChanged, this, &FurtherWindow::showTitle);
    showScene(m_parts.pane.getView().getScene());
    m_pane->getView().setScene(m_parts.pane.getView().getScene(), m_parts.pane.getView().getPlace());
    m_pane->getPoints().getMarks().take(m_parts.pane.getPoints().getMarks());
    m_pane->linkSelection();
    showTitle();
}

void FurtherWindow::showScene(SoNode* root)
{
    m_looks.show(m_parts.scenes.getFront(), root);
    m_pane->getPoints().getMarks().setScene(root);
    const bool isElsewhere = MirroredNode::of(root) != nullptr;
    m_elsewhere->setVisible(isElsewhere);
    m_elsewhere->raise();
}

void FurtherWindow::showTitle()
{
    setWindowTitle(m_parts.main.windowTitle() + QStringLiteral(" – %1").arg(m_number));
    setWindowModified(m_parts.main.isWindowModified());
}

void FurtherWindow::startFinding()
{
    m_pane->getPanel().startFinding();
}

void FurtherWindow::restoreLayout()
{
    const ScreenLayouts::Layout layout =
        ScreenLayouts::find(ScreenLayouts::currentScreens(), layoutName(m_number));
    if (restoreGeometry(layout.geometry)) {
        m_splitter->restoreState(layout.docks);
        return;
    }
    resize(sizeHint().boundedTo(m_parts.main.size()));
    move(m_parts.main.pos() + QPoint(Offset, Offset) * (m_number - 1));
}

void FurtherWindow::keepLayout()
{
    const QString problem = SettingsFile(UserSettings::windowFile()).change([this](QSettings& settings) {
        ScreenLayouts::save(settings, {saveGeometry(), m_splitter->saveState()}, layoutName(m_number));
    });
    if (!problem.isEmpty())
        m_parts.notifier.info(problem);
}

// Files that are dropped here are the main window's.
bool FurtherWindow::event(QEvent* event)
{
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::Drop)
        return static_cast<QObject&>(m_parts.main).event(event);
    return QMainWindow::event(event);
}

// The user may have chosen other buttons meanwhile.
void FurtherWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && m_pane)
        m_pane->getView().setMouseScheme(m_parts.pane.getView().getMouseScheme());
    QMainWindow::changeEvent(event);
}

void FurtherWindow::closeEvent(QCloseEvent* event)
{
    keepLayout();
    emit closing(this);
    QMainWindow::closeEvent(event);
}

} // namespace scopix
