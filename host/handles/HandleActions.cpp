// SPDX-License-Identifier: MIT
#include "handles/HandleActions.h"

#include "handles/HandleTool.h"
#include "theme/SvgIcon.h"
#include "viewport/SceneView.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace scopix
{

namespace
{

bool isView(const QObject* object)
{
    return qobject_cast<const SceneView*>(object) != nullptr;
}

} // namespace

HandleActions::HandleActions(HandleTool& tool, QWidget& owner, const QList<QWidget*>& widgets)
    : QObject(&owner)
    , m_tool(&tool)
    , m_owner(owner)
    , m_ownAxes(new QAction(tr("Handles Along Their &Own Axes"), this))
{
    addMode(int(HandleMode::Select), tr("&Select"), QStringLiteral("action-select"), Qt::Key_Q);
    addMode(int(HandleMode::Move), tr("&Move"), QStringLiteral("action-move"), Qt::Key_W);
    addMode(int(HandleMode::Turn), tr("&Turn"), QStringLiteral("action-turn"), Qt::Key_E);
    addMode(int(HandleMode::Scale), tr("S&cale"), QStringLiteral("action-scale"), Qt::Key_R);
    auto* group = new QActionGroup(this);
    for (QAction* mode : m_modes)
        group->addAction(mode);
    m_ownAxes->setObjectName(QStringLiteral("ownAxesAction"));
    m_ownAxes->setShortcut(QStringLiteral("Ctrl+U, X"));
    m_ownAxes->setCheckable(true);
    connect(m_ownAxes, &QAction::toggled, &tool, [this](bool on) { m_tool->setOfWorld(!on); });
    connect(&tool, &HandleTool::modeChanged, this, &HandleActions::showState);
    connect(&tool, &HandleTool::ofWorldChanged, this, &HandleActions::showState);
    for (QWidget* widget : widgets) {
        widget->addActions(m_modes);
        widget->installEventFilter(this);
    }
    showState();
}

void HandleActions::addMode(int mode, const QString& text, const QString& icon, Qt::Key key)
{
    auto* action = new QAction(svgIcon(icon, &m_owner), text, this);
    action->setObjectName(icon);
    action->setCheckable(true);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, m_tool.data(), [this, mode] { m_tool->setMode(HandleMode(mode)); });
    m_modes << action;
}

void HandleActions::showState()
{
    m_modes[int(m_tool->getMode())]->setChecked(true);
    m_ownAxes->setChecked(!m_tool->isOfWorld());
}

// The view hands its keys over by itself, in the order of its tools.
bool HandleActions::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_tool) // at the window's end
        return QObject::eventFilter(watched, event);
    // A drag by keys ends where they go elsewhere, but not where they go on in the view.
    if (event->type() == QEvent::FocusOut && !isView(QApplication::focusWidget()))
        m_tool->focusLost();
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || isView(watched) || !m_tool->wantsKey(*static_cast<QKeyEvent*>(event)))
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return m_tool->keyPressed(*static_cast<QKeyEvent*>(event));
    event->accept();
    return true;
}

} // namespace scopix
