// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QString>

#include <vector>

class QAction;
class QMenuBar;

namespace scopix
{

/// One thing that a menu offers.
struct MenuAct {
    QAction* action;
    QString text;  // "Save As…"
    QString place; // "File"; "View ▸ Shading"
};

/// All that the menus offer, in their order. `listed`: entries that a menu makes when it opens are made now,
/// and are valid until it opens again.
std::vector<MenuAct> findActs(QMenuBar& bar, bool listed = false);
/// Without the mark of its letter.
QString plainText(const QString& menuText);

} // namespace scopix
