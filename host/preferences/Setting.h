// SPDX-License-Identifier: MIT
#pragma once

#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>
#include <vector>

namespace scopix
{

/// One thing that the user may set, as data: the dialog makes its input, its page and its search of it.
struct Setting {
    enum class Kind { Choice, Number, Switch };

    QString key;   // names it for programs: "theme"
    QString page;  // where it stands in the dialog
    QString label; // "Colours"
    QString help;  // one sentence
    Kind kind;
    QVector<QPair<QString, QString>> choices; // of a Choice: the value and how it is called
    int lowest = 0;                           // of a Number
    int highest = 0;
    QString unit;     // behind the number: " MiB"
    QString atLowest; // what the lowest number means, where it is no number: "as the system"
    QVariant shipped;

    std::function<QVariant()> get;
    /// Takes hold at once, or when `help` says so. One sentence where it cannot be kept, else empty.
    std::function<QString(const QVariant&)> set;
};

/// Where every word of `query` begins a word of the label, the help, the page or the choices.
bool fits(const Setting& setting, const QString& query);

} // namespace scopix
