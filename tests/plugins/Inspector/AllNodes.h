// SPDX-License-Identifier: MIT
// A node of every type, and the rows that the panel shows for it.
#pragma once

#include "plugins/Inspector/InspectorSession.h"

#include <xsg/nodes/base/SoNode.h>

inline std::vector<SoRef<SoNode>> nodesOfAllTypes()
{
    std::vector<SoRef<SoNode>> nodes;
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        SoRef<SoNode> node(type.canCreateInstance() ? dynamic_cast<SoNode*>(type.createInstance()) : nullptr);
        if (node && node->getFieldData()->getNumFields() > 0)
            nodes.push_back(std::move(node));
    }
    return nodes;
}

inline QString nameOf(const SoNode& node)
{
    return QString::fromLatin1(node.getTypeId().getName().getString());
}

// From top to bottom.
inline QList<QWidget*> rowsOf(QWidget& panel)
{
    QList<QWidget*> rows;
    for (auto* row : panel.findChildren<QWidget*>(QStringLiteral("row"))) {
        if (row->isVisible())
            rows += row;
    }
    std::sort(rows.begin(), rows.end(), [](QWidget* a, QWidget* b) { return a->y() < b->y(); });
    return rows;
}
