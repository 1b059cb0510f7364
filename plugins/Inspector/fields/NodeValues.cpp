// SPDX-License-Identifier: MIT
#include "fields/NodeValues.h"

#include <scopix/editing/SpxFieldEdit.h>
#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int LongestText = 64 << 20;

bool holdsNodes(const SoField& field)
{
    return dynamic_cast<const SoSFNode*>(&field) || dynamic_cast<const SoMFNode*>(&field);
}

QString firstLine()
{
    return QString::fromLatin1(SoSceneFile::FirstLine.data(), int(SoSceneFile::FirstLine.size())) +
           QLatin1Char('\n');
}

QString sceneOf(const SoFieldContainer& node, const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.startsWith(QLatin1Char('#')))
        return trimmed + QLatin1Char('\n');
    if (trimmed.endsWith(QLatin1Char('}')))
        return firstLine() + trimmed + QLatin1Char('\n');
    return firstLine() + SpxText::toQString(node.getTypeId().getName()) + QStringLiteral(" {\n") + trimmed +
           QStringLiteral("\n}\n");
}

SoRef<SoNode> read(const SoFieldContainer& node, const QString& text)
{
    // Anything else is no scene, which need not be reported as a damaged one.
    if (!text.contains(QLatin1Char(':')) || text.size() > LongestText)
        return nullptr;
    std::string error;
    return SoSceneFile::readText(sceneOf(node, text).toStdString(), "clipboard", error);
}

} // namespace

std::vector<SoField*> allFields(const SoFieldContainer& node)
{
    std::vector<SoField*> fields;
    const SoFieldData* data = node.getFieldData();
    for (int i = 0; i < data->getNumFields(); ++i)
        fields.push_back(data->getField(&node, i));
    return fields;
}

std::vector<SoField*> changedFields(const SoFieldContainer& node)
{
    std::vector<SoField*> fields = allFields(node);
    const auto isDefault = [](const SoField* field) { return field->isDefault(); };
    fields.erase(std::remove_if(fields.begin(), fields.end(), isDefault), fields.end());
    return fields;
}

QString valuesText(const SoFieldContainer& node)
{
    QString text = firstLine() + SpxText::toQString(node.getTypeId().getName()) + QStringLiteral(" {\n");
    for (const SoField* field : changedFields(node)) {
        if (!holdsNodes(*field))
            text += QStringLiteral("    %1: %2\n")
                        .arg(SpxText::toQString(field->getName()), SpxText::ofField(*field));
    }
    return text + QStringLiteral("}\n");
}

bool pasteValues(SoFieldContainer& node, const QString& text)
{
    const SoRef<SoNode> source = read(node, text);
    bool isPasted = false;
    for (const SoField* field : source ? changedFields(*source) : std::vector<SoField*>()) {
        SoField* target = node.getField(field->getName());
        if (target && !holdsNodes(*target) && target->getTypeId() == field->getTypeId())
            isPasted = SpxFieldEdit::setValue(target, *field) || isPasted;
    }
    return isPasted;
}

} // namespace inspector
