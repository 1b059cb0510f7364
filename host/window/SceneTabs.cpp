// SPDX-License-Identifier: MIT
#include "window/SceneTabs.h"

#include "support/Printable.h"
#include "window/SceneFiles.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace scopix
{

SceneTabs::SceneTabs(SceneFiles& files)
    : m_files(files)
{
    setObjectName(QStringLiteral("sceneTabs"));
    setAccessibleName(tr("Open scenes"));
    setAutoHide(true);
    setDocumentMode(true);
    setExpanding(false);
    setTabsClosable(true);
    setMovable(true);
    setElideMode(Qt::ElideMiddle);
    connect(&files.getScenes(), &OpenScenes::listChanged, this, &SceneTabs::showAll);
    connect(this, &QTabBar::currentChanged, this, &SceneTabs::choose);
    connect(this, &QTabBar::tabMoved, &files.getScenes(), &OpenScenes::move);
    connect(this, &QTabBar::tabCloseRequested, this, &SceneTabs::close);
    showAll();
}

void SceneTabs::addTo(QMenu& menu)
{
    const auto add = [&](const QString& text, const char* name, void (SceneTabs::*act)(int), int by,
                         int key) {
        QAction* action = menu.addAction(
            text, this, [this, act, by] { (this->*act)(by); }, key);
        action->setObjectName(QLatin1String(name));
        m_acts.append(action);
    };
    add(tr("Ne&xt Tab"), "nextTabAction", &SceneTabs::go, 1, Qt::CTRL + Qt::Key_Tab);
    add(tr("Pre&vious Tab"), "previousTabAction", &SceneTabs::go, -1, Qt::CTRL + Qt::SHIFT + Qt::Key_Tab);
    add(tr("Move Tab to the Ri&ght"), "moveTabRightAction", &SceneTabs::shift, 1,
        Qt::CTRL + Qt::SHIFT + Qt::Key_PageDown);
    add(tr("Move Tab to the &Left"), "moveTabLeftAction", &SceneTabs::shift, -1,
        Qt::CTRL + Qt::SHIFT + Qt::Key_PageUp);
    showAll();
}

void SceneTabs::showAll()
{
    const QSignalBlocker quiet(this);
    const std::vector<OpenScene*> all = m_files.getScenes().getAll();
    while (count() > static_cast<int>(all.size()))
        removeTab(count() - 1);
    while (count() < static_cast<int>(all.size()))
        addTab({});
    for (int i = 0; i < count(); ++i)
        showTab(i, *all[static_cast<std::size_t>(i)]);
    const auto front = std::find(all.begin(), all.end(), &m_files.getScenes().getFront());
    setCurrentIndex(static_cast<int>(front - all.begin()));
    for (QAction* act : qAsConst(m_acts))
        act->setEnabled(count() > 1);
}

void SceneTabs::showTab(int index, const OpenScene& scene)
{
    const SceneDocument& document = scene.getDocument();
    QString name = printable(document.getTitle());
    name.replace(QLatin1Char('&'), QStringLiteral("&&"));
    const QString text = document.isModified() ? tr("%1 ●").arg(name) : name;
    if (tabText(index) != text)
        setTabText(index, text);
    setTabToolTip(index, printable(document.getPath()));
    const int side = style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, this);
    if (QWidget* cross = tabButton(index, static_cast<ButtonPosition>(side)))
        cross->setToolTip(tr("Close this tab"));
}

void SceneTabs::choose(int index)
{
    const std::vector<OpenScene*> all = m_files.getScenes().getAll();
    if (index >= 0 && index < static_cast<int>(all.size()))
        m_files.getScenes().bringToFront(*all[static_cast<std::size_t>(index)]);
}

// From the event loop: the bar is in the middle of an event of the tab that goes.
void SceneTabs::close(int index)
{
    const std::vector<OpenScene*> all = m_files.getScenes().getAll();
    if (index < 0 || index >= static_cast<int>(all.size()))
        return;
    const QPointer<OpenScene> scene(all[static_cast<std::size_t>(index)]);
    QMetaObject::invokeMethod(
        this,
        [this, scene] {
            if (scene)
                m_files.closeScene(*scene);
        },
        Qt::QueuedConnection);
}

void SceneTabs::go(int by)
{
    choose((currentIndex() + by + count()) % count());
}

void SceneTabs::shift(int by)
{
    const int to = currentIndex() + by;
    if (to >= 0 && to < count())
        moveTab(currentIndex(), to);
}

void SceneTabs::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton)
        close(tabAt(event->pos())); // which says -1 beside them
    else
        QTabBar::mouseReleaseEvent(event);
}

} // namespace scopix
