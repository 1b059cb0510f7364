// SPDX-License-Identifier: MIT
#include "window/FurtherWindows.h"

#include "panels/SceneTreeView.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "support/UserNotifier.h"
#include "viewport/PointMarks.h"
#include "viewport/SceneView.h"
#include "window/TreeAndView.h"
#include "window/TreeColumns.h"
#include "window/ViewPoints.h"

#include <QAction>
#include <QMenu>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace scopix
{

namespace
{

constexpr int FirstNumber = 2; // the main window is the first
constexpr int MostOpenedAgain = 20;

QString numbersKey()
{
    return QStringLiteral("furtherWindows");
}

// As the settings say, which anybody may have edited.
QList<int> numbersKept()
{
    QList<int> numbers;
    for (const QString& each : SettingsFile(UserSettings::windowFile()).value(numbersKey()).toStringList()) {
        const int number = each.toInt();
        if (number >= FirstNumber && numbers.size() < MostOpenedAgain)
            numbers.append(number);
    }
    return numbers;
}

} // namespace

FurtherWindows::FurtherWindows(const FurtherWindow::Parts& parts)
    : m_parts(parts)
    , m_action(parts.viewMenu.addAction(
          tr("&New Window"), this, [this] { open(); }, Qt::CTRL + Qt::SHIFT + Qt::Key_N))
{
    m_action->setObjectName(QStringLiteral("newWindowAction"));
}

FurtherWindows::~FurtherWindows()
{
    // Where the program ends and nobody has closed them.
    for (FurtherWindow* window : m_windows)
        window->keepLayout();
    qDeleteAll(std::exchange(m_windows, {}));
    // From the event loop it would be too late: they use what the main window has.
    for (const QPointer<FurtherWindow>& window : std::exchange(m_closed, {}))
        delete window.data();
}

FurtherWindow& FurtherWindows::open()
{
    FurtherWindow& window = make(freeNumber());
    window.show();
    window.activateWindow();
    window.getPane().getView().setFocus();
    keepNumbers();
    return window;
}

FurtherWindow& FurtherWindows::make(int number)
{
    auto* window = new FurtherWindow(m_parts, number);
    m_windows.append(window);
    connect(window, &FurtherWindow::closing, this, &FurtherWindows::forget);
    window->getPane().getColumns().setProviders(m_columns);
    window->restoreLayout();
    return *window;
}

void FurtherWindows::openAgain()
{
    for (const int number : numbersKept()) {
        if (has(number))
            continue;
        FurtherWindow& window = make(number);
        window.setAttribute(Qt::WA_ShowWithoutActivating);
        window.show();
        window.setAttribute(Qt::WA_ShowWithoutActivating, false);
    }
}

bool FurtherWindows::has(int number) const
{
    return std::any_of(m_windows.begin(), m_windows.end(),
                       [number](const FurtherWindow* window) { return window->getNumber() == number; });
}

int FurtherWindows::freeNumber() const
{
    int number = FirstNumber;
    while (has(number))
        ++number;
    return number;
}

void FurtherWindows::forget(FurtherWindow* window)
{
    m_windows.removeOne(window);
    m_closed.removeAll(nullptr);
    m_closed.append(window);
    if (!m_isClosingAll)
        keepNumbers();
}

// At once, so that they come back after a crash, too.
void FurtherWindows::keepNumbers()
{
    QStringList numbers;
    for (const FurtherWindow* window : m_windows)
        numbers.append(QString::number(window->getNumber()));
    const QString problem = SettingsFile(UserSettings::windowFile()).setValue(numbersKey(), numbers);
    if (!problem.isEmpty())
        m_parts.notifier.info(problem);
}

void FurtherWindows::closeAll()
{
    const QScopedValueRollback<bool> closing(m_isClosingAll, true);
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
