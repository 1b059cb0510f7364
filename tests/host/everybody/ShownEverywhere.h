// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

class QWidget;

/// A text that a user meets, and which widget or act shows it.
struct ShownText {
    QString text;
    QString where;
    bool isPrescribed; // by the default extensions, whose texts are names too (decisions.md: default-texts)
};

/// Every text of the window, its docks, dialogs, menus and context menus: captions, hints, tool tips, what is
/// read out.
std::vector<ShownText> textsShown(QWidget& window);
/// What no language changes: names of nodes, fields and types, numbers, keys, signs, names of programs.
bool isOfThisSystem(const ShownText& text);
