// SPDX-License-Identifier: MIT
#include "fields/FieldText.h"

#include "fields/FieldKind.h"
#include "fields/ListRange.h"
#include "fields/NodeValues.h"

#include <scopix/SpxSceneServices.h>
#include <scopix/editing/SpxText.h>
#include <xsg/core/SoMField.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/paths/SoScenePath.h>

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int Longest = 120;
constexpr int FirstValues = 3;

QString tr(const char* text, int count = -1)
{
    return QCoreApplication::translate("inspector::FieldText", text, nullptr, count);
}

QString shortened(QString text)
{
    text.replace(QLatin1Char('\n'), QChar(0x23CE));
    return text.size() > Longest ? text.left(Longest - 1) + QChar(0x2026) : text;
}

QString imageText(const SoSFImage& image)
{
    int width = 0;
    int height = 0;
    int components = 0;
    image.getValue(width, height, components);
    return width == 0 ? tr("no picture") : tr("%1 × %2, %3 channels").arg(width).arg(height).arg(components);
}

} // namespace

QString nodeLabel(const SoFieldContainer& node)
{
    const SbName name = node.getName();
    return SpxText::toQString(name.getLength() > 0 ? name : node.getTypeId().getName());
}

namespace
{

SoScenePath scenePathOf(const SoFieldContainer& node)
{
    const SpxSceneServices* scene = SpxSceneServices::getInstance();
    const SoPath path = scene ? scene->getSelectedPath() : SoPath();
    return !path.isEmpty() && path.getTail() == &node ? SoScenePath::of(path) : SoScenePath::ofLabel(node);
}

// Names hold Latin-1.
QString textOf(const SoScenePath& path)
{
    return SpxText::toQString(SbName(SbString(path.toText())));
}

} // namespace

QString pathOf(const SoFieldContainer& node)
{
    return textOf(scenePathOf(node));
}

QString pathOf(const SoField& field)
{
    const SoFieldContainer* node = field.getContainer();
    SoScenePath path = node ? scenePathOf(*node) : SoScenePath();
    path.setField(field.getName().getString());
    return textOf(path);
}

QString sceneText(const SoField& field)
{
    return SpxText::toQString(field.getName()) + QStringLiteral(": ") + SpxText::ofField(field);
}

QString cppText(const SoField& field)
{
    QString value = SpxText::ofField(field);
    value.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    value.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QStringLiteral("node->%1.set(SbString(\"%2\"));").arg(SpxText::toQString(field.getName()), value);
}

QString cppText(const SoFieldContainer& node)
{
    QString text =
        QStringLiteral("auto* node = new So%1;\n").arg(SpxText::toQString(node.getTypeId().getName()));
    for (const SoField* field : changedFields(node))
        text += cppText(*field) + QLatin1Char('\n');
    return text;
}

QString summary(const SoField& field)
{
    if (kindOf(field) == FieldKind::List)
        return listSummary(field);
    if (const auto* image = dynamic_cast<const SoSFImage*>(&field))
        return imageText(*image);
    return shortened(SpxText::ofField(field));
}

QString listSummary(const SoField& list)
{
    const auto& values = static_cast<const SoMField&>(list);
    const int count = values.getNum();
    if (count == 0)
        return tr("empty");
    QString text = count == 1 ? tr("1 value") : tr("%1 values").arg(QLocale::c().toString(count));
    const std::optional<ListRange> range = rangeOf(list);
    if (range)
        text = tr("%1, %2 to %3")
                   .arg(text, SpxText::ofNumber(float(range->low)), SpxText::ofNumber(float(range->high)));
    QStringList first;
    for (int i = 0; i < std::min(count, FirstValues); ++i) {
        SbString value;
        values.get1(i, value);
        first += SpxText::toQString(value);
    }
    return shortened(text + QStringLiteral(": ") + first.join(QStringLiteral(", ")) +
                     (count > FirstValues ? QStringLiteral(", \u2026") : QString()));
}

} // namespace inspector
