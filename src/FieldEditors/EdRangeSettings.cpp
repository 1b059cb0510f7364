// SPDX-License-Identifier: MIT
#include "EdRangeSettings.h"

namespace
{

struct RangeRow {
    const char* nodeType;
    const char* fieldName;
    const char* minimum;
    const char* maximum;
    char kind; // f: float, d: double, i: integer
    const char* boundFixed;
};

constexpr RangeRow Rows[] = {
    {"DefaultNode", "floatField", "0.0", "10.0", 'f', "0"},
    {"DefaultNode", "doubleField", "0.0", "10.0", 'd', "0"},
    {"DefaultNode", "intField", "0", "100", 'i', "0"},
    {"Complexity", "value", "0.0", "1.0", 'f', "1"},
    {"Complexity", "textureQuality", "0.0", "1.0", 'f', "1"},
    {"DirectionalLight", "intensity", "0.0", "1.0", 'f', "1"},
    {"Material", "transparency", "0.0", "1.0", 'f', "1"},
};

// No separator: "Complex" + "ityvalue" finds "Complexity" + "value" (decisions.md: range-keys).
QString keyOf(const char* nodeType, const char* fieldName)
{
    return QString::fromLatin1(nodeType) + QString::fromLatin1(fieldName);
}

int toInt(const QString& text)
{
    return text.toInt(nullptr, EdRangeSettings::checkBase(text));
}

EdRangeComponent rangeOf(const RangeRow& row)
{
    const QString minimum = QString::fromLatin1(row.minimum);
    const QString maximum = QString::fromLatin1(row.maximum);
    EdRangeComponent range;
    if (row.kind == 'f')
        range.setfRange(minimum.toFloat(), maximum.toFloat());
    else if (row.kind == 'd')
        range.setdRange(minimum.toDouble(), maximum.toDouble());
    else if (row.kind == 'i')
        range.setiRange(toInt(minimum), toInt(maximum));
    range.setBoundFixed(QString::fromLatin1(row.boundFixed).toInt() != 0);
    return range;
}

} // namespace

EdRangeSettings::EdRangeSettings()
{
    for (const RangeRow& row : Rows)
        m_ranges.insert(keyOf(row.nodeType, row.fieldName), rangeOf(row));
}

bool EdRangeSettings::isBounded(const char* nodeType, const char* fieldName) const
{
    return m_ranges.contains(keyOf(nodeType, fieldName));
}

EdRangeComponent EdRangeSettings::getFieldRange(const char* nodeType, const char* fieldName) const
{
    return m_ranges.value(keyOf(nodeType, fieldName));
}

int EdRangeSettings::checkBase(const QString& text)
{
    if (text.length() > 2)
        return text.startsWith(QLatin1String("0x")) ? 16 : 10;
    return text.length() == 2 && text.startsWith(QLatin1Char('0')) ? 8 : 10;
}
