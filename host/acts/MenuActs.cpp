// SPDX-License-Identifier: MIT
#include "acts/MenuActs.h"

#include <QMenu>
#include <QMenuBar>

namespace scopix
{

namespace
{

void collect(const QList<QAction*>& actions, const QString& place, bool listed, std::vector<MenuAct>& acts)
{
    for (QAction* action : actions) {
        const QString text = plainText(action->text());
        if (action->isSeparator() || text.isEmpty() || !action->isVisible())
            continue;
        QMenu* menu = action->menu();
        if (menu && listed)
            emit menu->aboutToShow();
        if (menu)
            collect(menu->actions(), place.isEmpty() ? text : place + QStringLiteral(" ▸ ") + text, listed,
                    acts);
        else
            acts.push_back({action, text, place});
    }
}

} // namespace

QString plainText(const QString& menuText)
{
    QString text;
    for (int i = 0; i < menuText.size(); ++i) {
        if (menuText[i] == QLatin1Char('&') && ++i == menuText.size())
            break;
        text += menuText[i];
    }
    return text;
}

std::vector<MenuAct> findActs(QMenuBar& bar, bool listed)
{
    std::vector<MenuAct> acts;
    collect(bar.actions(), {}, listed, acts);
    return acts;
}

} // namespace scopix
