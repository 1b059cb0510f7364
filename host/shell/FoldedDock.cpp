// SPDX-License-Identifier: MIT
#include "shell/FoldedDock.h"

#include <QDockWidget>
#include <QEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

namespace scopix
{

FoldedDock::FoldedDock(QDockWidget& dock)
    : QObject(&dock)
    , m_dock(dock)
    , m_content(dock.widget())
{
    dock.installEventFilter(this);
    if (m_content)
        m_content->installEventFilter(this);
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
    if (!parent())
        return;
    if (m_content)
        m_content->hide();
    m_dock.setMaximumHeight(m_dock.minimumSizeHint().height());
}

void FoldedDock::watchTexts()
{
    watchAll<QTextEdit>();
    watchAll<QPlainTextEdit>();
}

// A text that is set up, and stays empty, says nothing.
template <class Text>
void FoldedDock::watchAll()
{
    for (Text* each : m_content ? m_content->findChildren<Text*>() : QList<Text*>()) {
        connect(each, &Text::textChanged, this, [this, each] {
            if (!each->document()->isEmpty())
                unfold();
        });
    }
}

void FoldedDock::unfold()
{
    if (!parent())
        return;
    m_dock.removeEventFilter(this);
    m_dock.disconnect(this);
    m_dock.setMaximumHeight(QWIDGETSIZE_MAX);
    if (m_content) {
        m_content->removeEventFilter(this);
        m_content->show();
    }
    setParent(nullptr); // at once no longer the dock's
    deleteLater();
}

bool FoldedDock::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_content && event->type() == QEvent::ShowToParent)
        m_content->hide(); // a tool that comes up shows all that it has
    else if (watched == &m_dock && event->type() == QEvent::MouseButtonRelease &&
             static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        unfold();
    // The title grows with the font.
    else if (watched == &m_dock && event->type() == QEvent::FontChange)
        QMetaObject::invokeMethod(
            this, [this] { fold(); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

} // namespace scopix
