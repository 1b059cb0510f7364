// SPDX-License-Identifier: MIT
#include "window/Welcome.h"

#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "start/StartPage.h"
#include "start/Tour.h"
#include "viewport/SceneView.h"
#include "window/SceneFiles.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QUndoStack>

namespace scopix
{

namespace
{

constexpr int LookAgainMs = 500;

enum TourStep { ToClick, ToChoose, ToTune, ToUndo };

QWidget* shownDockAt(const QMainWindow& window, Qt::DockWidgetArea area)
{
    for (auto* dock : window.findChildren<QDockWidget*>()) {
        if (window.dockWidgetArea(dock) == area && dock->isVisible() && !dock->isFloating() &&
            !dock->visibleRegion().isEmpty())
            return dock;
    }
    return nullptr;
}

} // namespace

Welcome::Welcome(const Parts& parts, const QList<QAction*>& begin)
    : QObject(&parts.window)
    , m_parts(parts)
    , m_page(new StartPage(parts.view))
    , m_tourAction(new QAction(tr("Take the &Tour"), this))
    , m_pageAction(new QAction(tr("&Start Page"), this))
{
    m_tourAction->setObjectName(QStringLiteral("tourAction"));
    m_tourAction->setShortcut(Qt::SHIFT + Qt::Key_F9);
    m_tourAction->setToolTip(tr("Five steps through this window"));
    m_pageAction->setShortcut(Qt::Key_F9);
    m_pageAction->setObjectName(QStringLiteral("startPageAction"));
    for (QAction* act : begin)
        m_page->addAct(*act);
    m_page->addAct(*m_tourAction);
    makeTour();
    connect(m_tourAction, &QAction::triggered, this, &Welcome::beginTour);
    connect(m_pageAction, &QAction::triggered, this, &Welcome::openPage);
    connect(m_page, &StartPage::chosen, &parts.files, &SceneFiles::openRecent);
    connect(&parts.files.getScenes(), &OpenScenes::rootChanged, m_page, &QWidget::hide);
    connect(&parts.files.getScenes(), &OpenScenes::stateChanged, this, &Welcome::pathChanged);
    m_picture.setInterval(LookAgainMs);
    connect(&m_picture, &QTimer::timeout, this, &Welcome::takePicture);
}

void Welcome::addTo(QMenu& menu)
{
    menu.addActions({m_pageAction, m_tourAction});
}

void Welcome::enterInteractiveMode()
{
    m_isInteractive = true;
    m_pictures.keepOnly(m_parts.files.getRecent().list());
    const SceneDocument& document = m_parts.files.getDocument();
    if (document.getPath().isEmpty() && !document.isExternal() && !document.isModified())
        openPage();
    else
        pathChanged();
}

void Welcome::openPage()
{
    m_page->setRecent(m_parts.files.getRecent().list());
    m_page->open();
}

void Welcome::pathChanged()
{
    const QString path = m_parts.files.getDocument().getPath();
    if (!m_isInteractive || path == m_pictured)
        return;
    m_pictured = path;
    m_picture.start();
}

// Once it has been drawn, whatever time that takes.
void Welcome::takePicture()
{
    const SceneDocument& document = m_parts.files.getDocument();
    if (m_parts.view.isDrawing() || m_parts.view.getDrawCount() == 0)
        return;
    m_picture.stop();
    // A picture that cannot be kept is not worth a message: an empty frame stands in its place.
    if (!document.getPath().isEmpty())
        m_pictures.keep(document.getPath(), m_parts.view.grab().toImage());
}

void Welcome::makeTour()
{
    QMainWindow& window = m_parts.window;
    const std::vector<Tour::Step> steps{
        {tr("Click anything"),
         tr("Click something in the 3D view. Drag to turn, drag with the right button to move, turn the "
            "wheel to come nearer."),
         [this] { return &m_parts.view; }},
        {tr("See where it stands"),
         tr("The tree shows the whole scene. Choose another node in it; Ctrl+F finds one by its name, type "
            "or value."),
         [this] { return &m_parts.tree; }},
        {tr("Tune it"),
         tr("Here are the values of what is selected. Change one: drag a number, or type one; the picture "
            "follows."),
         [&window] { return shownDockAt(window, Qt::RightDockWidgetArea); }},
        {tr("Undo it"), tr("Ctrl+Z takes the change back, bit by bit. One gesture is one step."),
         [&window] { return window.findChild<QWidget*>(QStringLiteral("mainToolBar")); }},
        {tr("Find everything else"),
         tr("Ctrl+K finds every act, node, field and setting by its name, F1 explains what is selected. Save "
            "with Ctrl+S, or export for another program from the File menu."),
         [&window] { return window.menuBar(); }},
    };
    m_tour = new Tour(window, steps);
    watchTour();
}

void Welcome::watchTour()
{
    connect(&m_parts.view, &SceneView::picked, m_tour, [this](const SoPath& path) {
        if (path.getTail())
            m_tour->done(ToClick);
    });
    if (auto* tree = qobject_cast<SceneTreeView*>(&m_parts.tree))
        connect(tree, &SceneTreeView::nodeSelected, m_tour, [this] { m_tour->done(ToChoose); });
    connect(&m_parts.files.getScenes(), &OpenScenes::edited, m_tour, [this] {
        if (m_parts.services.undoStack().canUndo())
            m_tour->done(ToTune);
    });
    connect(&m_parts.services.undoStack(), &QUndoStack::indexChanged, m_tour, [this] {
        if (m_parts.services.undoStack().canRedo())
            m_tour->done(ToUndo);
    });
}

void Welcome::beginTour()
{
    m_page->hide();
    m_tour->begin();
}

} // namespace scopix
