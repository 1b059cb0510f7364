// SPDX-License-Identifier: MIT
#include "window/SceneTabs.h"

#include "support/Printable.h"
#include "theme/SvgIcon.h"
#include "window/SceneFiles.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int CrossSize = 12;
constexpr int LeastLetters = 8; // beside the few that any tab has

} // namespace

SceneTabs::SceneTabs(SceneFiles& files)
    : m_files(files)
    , m_side(static_cast<ButtonPosition>(
          style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, this)))
{
    setObjectName(QStringLiteral("sceneTabs"));
    setAccessibleName(tr("Open scenes"));
    setAutoHide(true);
    setDocumentMode(true);
    setExpanding(false);
    setMovable(true);
    setElideMode(Qt::ElideMiddle);
    connect(&files.getScenes(), &OpenScenes::listChanged, this, &SceneTabs::showAll);
    connect(this, &QTabBar::currentChanged, this, &SceneTabs::choose);
    connect(this, &QTabBar::tabMoved, &files.getScenes(), &OpenScenes::move);
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
        addCross(addTab({}));
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
}

// The style's own cannot be seen on a dark ground.
void SceneTabs::addCross(int index)
{
    auto* cross = new QToolButton(this);
    cross->setAutoRaise(true);
    cross->setFocusPolicy(Qt::NoFocus); // there is an act with a key
    cross->setToolTip(tr("Close this tab"));
    cross->setAccessibleName(cross->toolTip());
    cross->setIconSize({CrossSize, CrossSize});
    connect(cross, &QToolButton::clicked, this, [this, cross] {
        for (int i = 0; i < count(); ++i)
            if (tabButton(i, m_side) == cross)
                return close(i);
    });
    setTabButton(index, m_side, cross);
    showCrosses();
}

void SceneTabs::showCrosses()
{
    for (int i = 0; i < count(); ++i)
        if (auto* cross = qobject_cast<QToolButton*>(tabButton(i, m_side)))
            cross->setIcon(svgIcon(QStringLiteral("action-close"), this));
}

// Some of the name can be read; beyond that, the bar scrolls.
QSize SceneTabs::minimumTabSizeHint(int index) const
{
    const QSize least = QTabBar::minimumTabSizeHint(index);
    const int readable = least.width() + LeastLetters * fontMetrics().averageCharWidth();
    return {std::max(least.width(), std::min(readable, tabSizeHint(index).width())), least.height()};
}

void SceneTabs::changeEvent(QEvent* event)
{
    QTabBar::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showCrosses();
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
