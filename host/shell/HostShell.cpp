// SPDX-License-Identifier: MIT
#include "shell/HostShell.h"

#include "shell/FoldedDock.h"
#include "support/CatchExceptions.h"

#include <scopix/SpxExtension.h>

#include <QAction>
#include <QDataStream>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QToolBar>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr qint32 LayoutVersion = 1;

QString nameOf(const SpxExtension* extension)
{
    return QString::fromUtf8(extension->getName().getString());
}

bool hiddenOnPurpose(const QWidget* widget)
{
    return widget->testAttribute(Qt::WA_WState_ExplicitShowHide) && widget->isHidden();
}

} // namespace

HostShell::HostShell(QMainWindow& window)
    : m_window(window)
{
}

HostShell::~HostShell() = default;

void HostShell::addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area)
{
    if (!dock)
        return;
    nameWidget(dock);
    const bool shown = m_dockShown.take(dock->objectName()) || !hiddenOnPurpose(dock);
    if (!m_window.restoreDockWidget(dock)) {
        m_window.addDockWidget(area, dock);
        stackOnAnother(dock, area);
    }
    dock->setVisible(shown);
    track(dock, dock->toggleViewAction());
    joinPlaceholder(dock);
    dock->installEventFilter(this);
    if (m_foldAtFirst.remove(dock->objectName()))
        new FoldedDock(*dock);
    updatePlaceholder();
}

// Docks side by side would leave each of them little room.
void HostShell::stackOnAnother(QDockWidget* dock, Qt::DockWidgetArea area)
{
    for (const Owned& each : m_owned) {
        auto* other = qobject_cast<QDockWidget*>(each.widget);
        if (other && other != dock && !other->isFloating() && m_window.dockWidgetArea(other) == area)
            return m_window.tabifyDockWidget(other, dock);
    }
}

void HostShell::removeDockWidget(QDockWidget* dock)
{
    if (!dock || dock->parentWidget() != &m_window)
        return;
    dock->removeEventFilter(this);
    untrack(dock);
    m_dockShown[dock->objectName()] = !dock->isHidden();
    // The window keeps a gap of the dock's name, where it comes back to.
    m_window.removeDockWidget(dock);
    dock->setParent(nullptr);
    updatePlaceholder();
}

void HostShell::addToolBar(QToolBar* toolBar, Qt::ToolBarArea area)
{
    if (!toolBar)
        return;
    nameWidget(toolBar);
    const ToolBarPlace place =
        m_toolBarPlaces.value(toolBar->objectName(), ToolBarPlace{area, !hiddenOnPurpose(toolBar)});
    m_window.addToolBar(place.area, toolBar);
    toolBar->setVisible(place.shown);
    track(toolBar, toolBar->toggleViewAction());
}

void HostShell::removeToolBar(QToolBar* toolBar)
{
    if (!toolBar || toolBar->parentWidget() != &m_window)
        return;
    untrack(toolBar);
    m_toolBarPlaces[toolBar->objectName()] = {m_window.toolBarArea(toolBar), !toolBar->isHidden()};
    m_window.removeToolBar(toolBar);
    toolBar->setParent(nullptr);
}

void HostShell::attachExtension(SpxExtension* extension, bool attach)
{
    if (!attach) {
        detachExtension(extension);
        return;
    }
    if (!extension || m_extensions.contains(extension))
        return;
    m_extensions.append(extension);
    emit extensionsChanged();
}

void HostShell::detachExtension(SpxExtension* extension)
{
    if (m_extensions.removeOne(extension))
        emit extensionsChanged();
}

QString HostShell::captionOf(const SpxExtension* extension) const
{
    for (const Owned& each : m_owned) {
        if (each.owner == extension && each.widget && !each.widget->windowTitle().isEmpty())
            return each.widget->windowTitle();
    }
    // In the plug-in's own words for the user, where it has some.
    return QCoreApplication::translate("Extension", qUtf8Printable(nameOf(extension)));
}

void HostShell::forget(const SpxExtension* extension)
{
    const QList<Owned> owned = m_owned;
    for (const Owned& each : owned) {
        if (each.owner == extension && each.widget)
            removeWidget(each.widget);
    }
    detachExtension(const_cast<SpxExtension*>(extension));
}

void HostShell::removeWidget(QWidget* widget)
{
    if (auto* dock = qobject_cast<QDockWidget*>(widget))
        removeDockWidget(dock);
    else if (auto* toolBar = qobject_cast<QToolBar*>(widget))
        removeToolBar(toolBar);
}

void HostShell::setShown(SpxExtension* extension, bool shown)
{
    if (!m_extensions.contains(extension))
        return;
    const QString name = nameOf(extension);
    m_waiting.remove(name);
    m_hiddenAtFirst.remove(name);
    if (shown)
        m_hiddenByPerson.remove(name);
    else
        m_hiddenByPerson.insert(name);
    const QString failure = catchExceptions([&] { shown ? extension->show() : extension->hide(); });
    if (!failure.isEmpty())
        emit failed(tr("The extension “%1” failed when it was to be shown or hidden: %2").arg(name, failure));
}

void HostShell::hideAtFirst(const QString& name)
{
    m_hiddenByPerson.insert(name);
    m_hiddenAtFirst.insert(name);
}

void HostShell::forgetFirstLook()
{
    m_hiddenByPerson.subtract(m_hiddenAtFirst);
    m_hiddenAtFirst.clear();
    m_foldAtFirst.clear();
    setBottomFolded(false);
}

QList<QDockWidget*> HostShell::bottomDocks() const
{
    QList<QDockWidget*> docks;
    for (const Owned& each : m_owned) {
        auto* dock = qobject_cast<QDockWidget*>(each.widget);
        if (dock && !dock->isFloating() && m_window.dockWidgetArea(dock) == Qt::BottomDockWidgetArea)
            docks += dock;
    }
    return docks;
}

void HostShell::setBottomFolded(bool folded)
{
    for (QDockWidget* dock : bottomDocks()) {
        FoldedDock* fold = FoldedDock::of(*dock);
        if (folded && !fold)
            new FoldedDock(*dock);
        else if (!folded && fold)
            fold->unfold();
    }
}

bool HostShell::isBottomFolded() const
{
    return !foldedDocks().isEmpty();
}

QStringList HostShell::foldedDocks() const
{
    QStringList names;
    for (const QDockWidget* dock : bottomDocks()) {
        if (FoldedDock::of(*dock))
            names += dock->objectName();
    }
    return names;
}

bool HostShell::isHiddenByPerson(const SpxExtension* extension) const
{
    return m_hiddenByPerson.contains(nameOf(extension));
}

bool HostShell::comesUpHidden(const SpxExtension* extension) const
{
    return isHiddenByPerson(extension) || m_waiting.contains(nameOf(extension));
}

void HostShell::addChoice(const void* owner, const Choice& choice)
{
    m_choices.emplace_back(owner, choice);
}

void HostShell::removeChoices(const void* owner)
{
    m_choices.erase(std::remove_if(m_choices.begin(), m_choices.end(),
                                   [owner](const auto& each) { return each.first == owner; }),
                    m_choices.end());
}

std::vector<SpxSettings::Choice> HostShell::getChoices() const
{
    std::vector<Choice> choices;
    for (const auto& each : m_choices)
        choices.push_back(each.second);
    return choices;
}

QByteArray HostShell::saveLayout() const
{
    QByteArray layout;
    QDataStream out(&layout, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_15);
    out << LayoutVersion << m_window.saveState() << m_hiddenByPerson;
    return layout;
}

bool HostShell::restoreLayout(const QByteArray& layout)
{
    QDataStream in(layout);
    in.setVersion(QDataStream::Qt_5_15);
    qint32 version = 0;
    QByteArray state;
    QSet<QString> hidden;
    in >> version;
    if (version != LayoutVersion)
        return false;
    in >> state >> hidden;
    if (in.status() != QDataStream::Ok)
        return false;
    // Places come from the layout; what is visible is decided by the extensions and, below, the user.
    QList<QPair<QWidget*, bool>> shown;
    for (const Owned& each : qAsConst(m_owned)) {
        if (each.widget)
            shown.append({each.widget, !each.widget->isHidden()});
    }
    if (!m_window.restoreState(state))
        return false;
    for (const auto& each : qAsConst(shown))
        each.first->setVisible(each.second);
    m_hiddenByPerson = hidden;
    m_hiddenAtFirst.clear();
    const QList<SpxExtension*> extensions = m_extensions;
    for (SpxExtension* extension : extensions) {
        if (extension->isShown() && isHiddenByPerson(extension))
            setShown(extension, false);
    }
    updatePlaceholder();
    return true;
}

bool HostShell::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close) {
        if (SpxExtension* owner = ownerOf(watched)) {
            const QPointer<SpxExtension> extension = owner;
            QMetaObject::invokeMethod(
                this, [this, extension] { personClosed(extension); }, Qt::QueuedConnection);
        }
    }
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)
        updatePlaceholder();
    // What an extension shows should be seen, also where it shares its place with others, but not in the
    // place of what the user works with.
    if (event->type() == QEvent::ShowToParent && !sharesPlaceWithFocus(qobject_cast<QDockWidget*>(watched)))
        QMetaObject::invokeMethod(watched, "raise", Qt::QueuedConnection);
    return false;
}

void HostShell::personClosed(SpxExtension* extension)
{
    if (extension)
        setShown(extension, false);
}

void HostShell::track(QWidget* widget, const QAction* toggle)
{
    untrack(widget);
    // The window's own context menu shows and hides docks and tool bars too.
    SpxExtension* owner = m_activating;
    const auto toggled = [this, owner](bool shown) { setShown(owner, shown); };
    m_owned.append({widget, owner, connect(toggle, &QAction::triggered, this, toggled)});
}

void HostShell::untrack(const QWidget* widget)
{
    for (int i = m_owned.size() - 1; i >= 0; --i) {
        if (m_owned.at(i).widget && m_owned.at(i).widget != widget)
            continue;
        disconnect(m_owned.at(i).toggled);
        m_owned.removeAt(i);
    }
}

SpxExtension* HostShell::ownerOf(const QObject* widget) const
{
    for (const Owned& each : m_owned) {
        if (each.widget == widget)
            return each.owner;
    }
    return nullptr;
}

// A name that no other dock or tool bar of the window has, the same in every session.
void HostShell::nameWidget(QWidget* widget) const
{
    const QString wanted = !widget->objectName().isEmpty() ? widget->objectName()
                           : m_activating                  ? nameOf(m_activating)
                                                           : widget->windowTitle();
    const auto taken = [&](const QString& name) {
        const auto others = m_window.findChildren<QWidget*>(name, Qt::FindDirectChildrenOnly);
        return std::any_of(others.begin(), others.end(), [&](QWidget* other) { return other != widget; });
    };
    QString name = wanted.isEmpty() ? QStringLiteral("extension") : wanted;
    for (int number = 2; taken(name); ++number)
        name = QStringLiteral("%1 %2").arg(wanted).arg(number);
    widget->setObjectName(name);
}

} // namespace scopix
