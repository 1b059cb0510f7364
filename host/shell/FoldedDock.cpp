// SPDX-License-Identifier: MIT
#include "shell/FoldedDock.h"

#include <QDockWidget>
#include <QEvent>
#include <QMetaMethod>
#include <QMouseEvent>

namespace scopix
{

FoldedDock::FoldedDock(QDockWidget& dock)
    : QObject(&dock)
    , m_dock(dock)
    , m_content(dock.widget())
{
    dock.installEventFilter(this);
    connect(&dock, &QDockWidget::topLevelChanged, this, &FoldedDock::unfold);
    watchTexts();
    fold();
}

FoldedDock::~FoldedDock() = default;

FoldedDock* FoldedDock::of(const QDockWidget& dock)
{
    return dock.findChild<FoldedDock*>(QString(), Qt::FindDirectChildrenOnly);
}

void FoldedDock::fold()
{
    if (m_content)
        m_content->hide();
    m_dock.setMaximumHeight(m_dock.minimumSizeHint().height());
}

// Whatever widget shows the text: those of Qt say by this signal that theirs has changed.
void FoldedDock::watchTexts()
{
    const QMetaMethod unfold = metaObject()->method(metaObject()->indexOfMethod("unfold()"));
    for (QWidget* each : m_content ? m_content->findChildren<QWidget*>() : QList<QWidget*>()) {
        const QMetaObject* type = each->metaObject();
        const int changed = type->indexOfSignal("textChanged()");
        if (changed >= 0)
            connect(each, type->method(changed), this, unfold);
    }
}

void FoldedDock::unfold()
{
    disconnect();
    m_dock.removeEventFilter(this);
    m_dock.disconnect(this);
    m_dock.setMaximumHeight(QWIDGETSIZE_MAX);
    if (m_content)
        m_content->show();
    setParent(nullptr); // at once no longer the dock's
    deleteLater();
}

bool FoldedDock::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        unfold();
    // The title grows with the font.
    else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        QMetaObject::invokeMethod(
            this, [this] { fold(); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

} // namespace scopix
