// SPDX-License-Identifier: MIT
#include "plugins/NoPluginsNotice.h"

#include <QMainWindow>
#include <QPlainTextEdit>

namespace scopix
{

namespace
{

constexpr int Margin = 12;

} // namespace

NoPluginsNotice::NoPluginsNotice(QMainWindow& window, const QStringList& searchedFolders)
    : QDockWidget(tr("No Plug-ins"), &window)
{
    setObjectName(QStringLiteral("noPlugins"));
    setFeatures(QDockWidget::DockWidgetClosable);
    auto* text =
        new QPlainTextEdit(tr("No plug-in is loaded, so there are no editors and no tools. Plug-ins were "
                              "looked for in these folders:\n\n%1")
                               .arg(searchedFolders.join(QLatin1Char('\n'))));
    // Unlike a label, it wraps long paths too, so that they do not widen the window.
    text->setReadOnly(true);
    text->setFrameShape(QFrame::NoFrame);
    text->viewport()->setAutoFillBackground(false);
    text->document()->setDocumentMargin(Margin);
    setWidget(text);
    window.addDockWidget(Qt::RightDockWidgetArea, this);
}

} // namespace scopix
