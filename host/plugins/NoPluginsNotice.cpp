// SPDX-License-Identifier: MIT
#include "plugins/NoPluginsNotice.h"

#include <QLabel>
#include <QMainWindow>

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
    auto* text = new QLabel(tr("No plug-in is loaded, so there are no editors and no tools. Plug-ins were "
                               "looked for in these folders:\n\n%1")
                                .arg(searchedFolders.join(QLatin1Char('\n'))));
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    text->setWordWrap(true);
    text->setMargin(Margin);
    setWidget(text);
    window.addDockWidget(Qt::RightDockWidgetArea, this);
}

} // namespace scopix
