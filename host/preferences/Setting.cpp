// SPDX-License-Identifier: MIT
#include "preferences/Setting.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace scopix
{

namespace
{

QStringList wordsOf(const QString& text)
{
    static const QRegularExpression between(QStringLiteral("\\W+"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return text.split(between, Qt::SkipEmptyParts);
}

} // namespace

bool fits(const Setting& setting, const QString& query)
{
    QStringList words = wordsOf(setting.label + QLatin1Char(' ') + setting.help + QLatin1Char(' ') +
                                setting.page + QLatin1Char(' ') + setting.key);
    for (const auto& choice : setting.choices)
        words += wordsOf(choice.second);
    const QStringList wanted = wordsOf(query);
    return std::all_of(wanted.begin(), wanted.end(), [&](const QString& each) {
        return std::any_of(words.begin(), words.end(),
                           [&](const QString& word) { return word.startsWith(each, Qt::CaseInsensitive); });
    });
}

} // namespace scopix
