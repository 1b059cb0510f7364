// SPDX-License-Identifier: MIT
#pragma once

#include "language/Languages.h"

#include <QRegularExpression>

class QObject;

namespace scopix
{

/// The texts that the widgets show by now, and where they came from. What was asked for as a whole, or with
/// arguments, is shown in another language; what the user or a file brought stays as it is. GUI thread only.
class ShownTexts
{
public:
    explicit ShownTexts(QHash<QString, Languages::Asked> said);

    /// All windows in the language that is spoken by now.
    void showAgain(const Languages& languages) const;
    /// One text.
    QString again(const QString& shown, const Languages& languages) const;

private:
    struct Pattern {
        QRegularExpression expression;
        QVector<QString> places; // what each of its groups stands for: "%1"
        Languages::Asked asked;
    };

    void addPattern(const QString& text, const Languages::Asked& asked);
    void showAgain(QObject& object, const Languages& languages) const;

    QHash<QString, Languages::Asked> m_said;
    std::vector<Pattern> m_patterns;
};

} // namespace scopix
