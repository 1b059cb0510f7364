// SPDX-License-Identifier: MIT
#include "window/FurtherWindows.h"

#include "panels/SceneTreeView.h"
#include "viewport/PointMarks.h"
#include "viewport/SceneView.h"
#include "window/TreeAndView.h"
#include "window/TreeColumns.h"
#include "window/ViewPoints.h"

#include <QAction>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace scopix
{

FurtherWindows::FurtherWindows(const FurtherWindow::Parts& parts)
    : m_parts(parts)
    , m_action(parts.viewMenu.addAction(
          tr("&New Window"), this, [this] { open(); }, Qt::CTRL + Qt::SHIFT + Qt::Key_N))
{
    m_action->setObjectName(QStringLiteral("newWindowAction"));
}

FurtherWindows::~FurtherWindows()
{
    qDeleteAll(std::exchange(m_windows, {}));
}

FurtherWindow& FurtherWindows::open()
{
    auto* window = new FurtherWindow(m_parts, freeNumber());
    m_windows.append(window);
    connect(window, &FurtherWindow::closing, this, &FurtherWindows::forget);
    window->getPane().getColumns().setProviders(m_columns);
    window->restoreLayout();
    window->show();
    window->activateWindow();
    window->getPane().getView().setFocus();
    return *window;
}

int FurtherWindows::freeNumber() const
{
    int number = 2;
    const auto has = [&number](const FurtherWindow* window) { return window->getNumber() == number; };
    while (std::any_of(m_windows.begin(), m_windows.end(), has))
        ++number;
    return number;
}

void FurtherWindows::forget(FurtherWindow* window)
{
    m_windows.removeOne(window);
}

void FurtherWindows::closeAll()
{
    for (FurtherWindow* window : QList<FurtherWindow*>(m_windows))
        window->close();
}

FurtherWindow* FurtherWindows::getActive() const
{
    for (FurtherWindow* window : m_windows)
        if (window->isActiveWindow())
            return window;
    return nullptr;
}

void FurtherWindows::marksChanged()
{
    for (const FurtherWindow* window : m_windows)
        window->getPane().getPoints().getMarks().take(m_parts.pane.getPoints().getMarks());
}

void FurtherWindows::setTreeColumns(const QList<SpxTreeColumnProvider*>& providers)
{
    m_columns = providers;
    for (const FurtherWindow* window : m_windows)
        window->getPane().getColumns().setProviders(providers);
}

void FurtherWindows::updateTreeColumns()
{
    for (const FurtherWindow* window : m_windows)
        window->getPane().getTree().updateMoreColumns();
}

} // namespace scopix
