// SPDX-License-Identifier: MIT
#include "preferences/PluginsPage.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace scopix
{

PluginsPage::PluginsPage(const std::vector<PluginState>& plugins, QWidget* parent)
    : QWidget(parent)
{
    auto* list = new QTreeWidget;
    list->setObjectName(QStringLiteral("pluginList"));
    list->setAccessibleName(tr("Plug-ins"));
    list->setHeaderLabels({tr("Plug-in"), tr("State"), tr("Reason")});
    list->setRootIsDecorated(false);
    list->setWordWrap(true);
    for (const PluginState& plugin : plugins) {
        auto* item = new QTreeWidgetItem(list, {plugin.name, textOf(plugin.state), plugin.reason});
        item->setToolTip(2, plugin.reason);
    }
    list->resizeColumnToContents(0);
    auto* note =
        new QLabel(tr("One that was set aside is loaded again by View ▸ Tools ▸ Try Again. Which tools "
                      "are active is a profile’s choice: View ▸ Profile."));
    note->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(list, 1);
    column->addWidget(note);
}

} // namespace scopix
