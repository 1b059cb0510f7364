// SPDX-License-Identifier: MIT
#include "shell/FoldedDock.h"

#include <QAbstractItemView>
#include <QDockWidget>
#include <QEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

#include <algorithm>
#include <utility>

namespace scopix
{

FoldedDock::FoldedDock(QDockWidget& dock)
    : QObject(&dock)
    , m_dock(dock)
    , m_content(dock.widget())
{
    dock.installEventFilter(this);
    connect(&dock, &QDockWidget::topLevelChanged, this, &FoldedDock::unfold);
    if (m_content)
        m_content->setEnabled(false); // out of the reach of Tab
    watchTexts();
    fold();
}

FoldedDock::~FoldedDock() = default;

FoldedDock* FoldedDock::of(const QDockWidget& dock)
{
    const auto all = dock.findChildren<FoldedDock*>(QString(), Qt::FindDirectChildrenOnly);
    const auto isFolded = [](const FoldedDock* each) { return !each->m_isOpen; };
    const auto found = std::find_if(all.begin(), all.end(), isFolded);
    return found == all.end() ? nullptr : *found;
}

void FoldedDock::fold()
{
    if (m_isOpen)
        return;
    if (m_content)
        m_content->setMaximumHeight(0); // hidden, it would leave no width to the title
    m_dock.setMaximumHeight(m_dock.minimumSizeHint().height());
}

void FoldedDock::watchTexts()
{
    watchAll<QTextEdit>();
    watchAll<QPlainTextEdit>();
    for (const QAbstractItemView* each :
         m_content ? m_content->findChildren<QAbstractItemView*>() : QList<QAbstractItemView*>()) {
        if (each->model() && each->property("unfoldsDock").toBool())
            connect(each->model(), &QAbstractItemModel::rowsInserted, this, &FoldedDock::unfold);
    }
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
    if (std::exchange(m_isOpen, true))
        return;
    m_dock.removeEventFilter(this);
    m_dock.disconnect(this);
    m_dock.setMaximumHeight(QWIDGETSIZE_MAX);
    if (m_content) {
        m_content->setMaximumHeight(QWIDGETSIZE_MAX);
        m_content->setEnabled(true);
    }
    deleteLater();
}

bool FoldedDock::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        unfold();
    // The title grows with the font.
    else if (event->type() == QEvent::FontChange)
        QMetaObject::invokeMethod(
            this, [this] { fold(); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

} // namespace scopix
