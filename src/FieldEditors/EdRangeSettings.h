// SPDX-License-Identifier: MIT
#pragma once

#include "EdRangeComponent.h"

#include <QMap>
#include <QString>

/// The ranges known for fields of well-known node types, and those of the pseudo node type "DefaultNode"
/// ("floatField", "doubleField", "intField") for all others.
class EdRangeSettings
{
public:
    EdRangeSettings();

    bool isBounded(const char* nodeType, const char* fieldName) const;
    /// All zero and not fixed where nothing is known.
    EdRangeComponent getFieldRange(const char* nodeType, const char* fieldName) const;
    /// The number base of an integer's text. Only texts of two characters are read as octal (decisions.md:
    /// two-character-octal).
    static int checkBase(const QString& text);

private:
    QMap<QString, EdRangeComponent> m_ranges;
};
