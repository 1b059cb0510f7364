// SPDX-License-Identifier: MIT
#include "changes/ChangesText.h"

#include "structure/BranchText.h"
#include "support/LongWork.h"
#include "text/NodeText.h"

#include <xsg/core/SoField.h>

#include <QRegularExpression>

namespace scopix
{

namespace
{

QString variableName(const SoFieldContainer& node)
{
    QString name =
        nodeText(node).replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_]+")), QStringLiteral("_"));
    name = name.isEmpty() || name.at(0).isDigit() ? QLatin1Char('_') + name : name;
    return name.left(1).toLower() + name.mid(1);
}

QString quoted(const SbString& text)
{
    QString all = QString::fromStdString(text.str());
    for (const auto& [sign, escaped] :
         {std::pair("\\", "\\\\"), {"\"", "\\\""}, {"\n", "\\n"}, {"\r", "\\r"}})
        all.replace(QLatin1String(sign), QLatin1String(escaped));
    return QLatin1Char('"') + all + QLatin1Char('"');
}

ChangeKeys sorted(const ChangeSource& source, const ChangeKeySet& keys)
{
    ChangeKeys all(keys.begin(), keys.end());
    source.sortByScene(all);
    return all;
}

} // namespace

QString changesAsCpp(const ChangeSource& source, const ChangeKeySet& keys)
{
    QString text;
    for (const ChangeKey& key : sorted(source, keys)) {
        LongWork::goOn();
        const ChangeSource::Text change = source.describe(key);
        QString comment = QStringLiteral("// %1: %2 → %3\n").arg(change.path, change.before, change.after);
        comment.replace(QRegularExpression(QStringLiteral("[\\n\\r\\\\]+(?!$)")), QStringLiteral(" "));
        text += comment;
        const SoField* field = source.fieldOf(key);
        if (!field)
            continue;
        SbString value;
        field->get(value);
        text += QStringLiteral("%1->%2.set(%3);\n")
                    .arg(variableName(*field->getContainer()), toQString(field->getName()), quoted(value));
    }
    return text;
}

QString changesAsScene(const ChangeSource& source, const ChangeKeySet& keys)
{
    std::vector<SoRef<SoNode>> nodes;
    std::map<const SoNode*, SoNode*> copies;
    for (const ChangeKey& key : sorted(source, keys)) {
        LongWork::goOn();
        SoNode* node = source.nodeOf(key);
        const SoField* field = source.fieldOf(key);
        if (key.kind == ChangeKey::Kind::Insert) {
            nodes.emplace_back(node);
        } else if (field && node->getTypeId().canCreateInstance()) {
            SoNode*& copy = copies[node];
            if (!copy) {
                copy = static_cast<SoNode*>(node->getTypeId().createInstance());
                nodes.emplace_back(copy);
                copy->setName(node->getName());
            }
            if (SoField* to = copy->getField(field->getName())) {
                to->copyFrom(*field);
                to->setIgnored(field->isIgnored());
            }
        }
    }
    std::vector<SoNode*> all;
    for (const auto& node : nodes)
        all.push_back(node.get());
    return all.empty() ? QString() : QString::fromStdString(writeBranches(all, LongWork::goOn));
}

} // namespace scopix
