// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <vector>

class QIcon;

namespace scopix
{

/// One thing that the palette offers.
struct PaletteEntry {
    QString text;  // what is searched
    QString place; // where it stands: "File"; "node, Sea"
    QString key;   // "Ctrl+S"
    std::function<void()> run;
    bool isEnabled = true;
};

/// The entries of one kind. Asked again each time the palette opens.
using PaletteSource = std::function<std::vector<PaletteEntry>()>;

/// How well the text fits what was typed, the more the better: the letters in their order, best at the
/// beginnings of words and without gaps. 0 where it does not fit.
int fitOf(const QString& text, const QString& typed);

} // namespace scopix
