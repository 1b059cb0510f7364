// SPDX-License-Identifier: MIT
#include "reader/Sentences.h"

#include <QCoreApplication>

namespace scopix
{

void addCounted(QStringList& sentences, unsigned count, const QString& one, const QString& several)
{
    if (count > 0)
        sentences += count == 1 ? one : several.arg(count);
}

QString quoted(const QStringList& names)
{
    constexpr int MostNamed = 5;
    const auto tr = [](const char* text) { return QCoreApplication::translate("LeftOut", text); };
    QStringList shown;
    for (const QString& name : names.mid(0, MostNamed))
        shown += tr("“%1”").arg(name);
    if (names.size() > MostNamed)
        shown += tr("…");
    return shown.join(QStringLiteral(", "));
}

} // namespace scopix
