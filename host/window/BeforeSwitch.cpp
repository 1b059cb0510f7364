// SPDX-License-Identifier: MIT
#include "window/BeforeSwitch.h"

#include "services/HostServices.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabBar>

namespace scopix
{

namespace
{

constexpr int MessageMs = 8000;

bool mayEdit(const QWidget& widget, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::ContextMenu:
    case QEvent::Drop:
        return true;
    case QEvent::Wheel:
        return widget.hasFocus();
    case QEvent::KeyPress: {
        const int key = static_cast<const QKeyEvent&>(event).key();
        return key != Qt::Key_Tab && key != Qt::Key_Backtab && key != Qt::Key_Escape;
    }
    default:
        return false;
    }
}

} // namespace

BeforeSwitch::BeforeSwitch(QMainWindow& window, HostServices& services)
    : QObject(&window)
    , m_window(window)
    , m_services(services)
    , m_action(new QAction(tr("Values &Before the Edits"), this))
    , m_note(new QLabel(tr("Before the edits")))
{
    m_action->setCheckable(true);
    m_action->setShortcut(Qt::Key_B);
    m_action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_note->setObjectName(QStringLiteral("beforeNote"));
    m_note->setToolTip(tr("The scene shows the values from when it was opened or last saved; press B in the "
                          "view to see the present ones."));
    window.statusBar()->addPermanentWidget(m_note);
    m_note->hide();
    connect(m_action, &QAction::triggered, this, &BeforeSwitch::switchTo);
    connect(&services.preview(), &HostPreview::formerShown, this, &BeforeSwitch::shown);
    connect(&services.preview(), &HostPreview::editRefused, this, &BeforeSwitch::say);
}

void BeforeSwitch::takeKeyIn(QWidget& widget)
{
    widget.addAction(m_action);
}

// Of what is selected, or of all.
void BeforeSwitch::switchTo(bool former)
{
    HostPreview& preview = m_services.preview();
    if (!former)
        return preview.showPresent();
    QList<SoField*> fields;
    const QList<SoFieldContainer*> selected = m_services.getSelectedNodes();
    for (const SoFieldContainer* node : selected)
        fields += preview.getEditedFields(node);
    if (selected.isEmpty())
        fields = preview.getEditedFields();
    if (preview.showFormer(fields))
        return;
    m_action->setChecked(false);
    say(selected.isEmpty() ? tr("No value has been edited since the scene was opened or saved.")
                           : tr("No value of what is selected has been edited since the scene was opened or "
                                "saved."));
}

void BeforeSwitch::shown(bool former)
{
    m_action->setChecked(former);
    m_note->setVisible(former);
    qApp->removeEventFilter(this);
    if (former)
        qApp->installEventFilter(this);
}

void BeforeSwitch::say(const QString& sentence)
{
    m_window.statusBar()->showMessage(sentence, MessageMs);
}

// What stands in a dock of an extension, without what scrolls, moves or closes the dock, and without what
// says by its property "editsNothing" that it is harmless.
bool BeforeSwitch::isGuarded(const QWidget* widget) const
{
    if (qobject_cast<const QScrollBar*>(widget) || qobject_cast<const QTabBar*>(widget) ||
        qobject_cast<const QDockWidget*>(widget))
        return false;
    if (qobject_cast<const QAbstractButton*>(widget) &&
        qobject_cast<const QDockWidget*>(widget->parentWidget()))
        return false;
    for (; widget; widget = widget->parentWidget()) {
        if (widget->property("editsNothing").toBool())
            return false;
        if (qobject_cast<const QDockWidget*>(widget))
            return widget->parentWidget() == &m_window && !m_leftAlone.contains(const_cast<QWidget*>(widget));
    }
    return false;
}

bool BeforeSwitch::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (!widget || !mayEdit(*widget, *event) || !isGuarded(widget))
        return QObject::eventFilter(watched, event);
    m_services.preview().refusesEdit();
    return true;
}

} // namespace scopix
