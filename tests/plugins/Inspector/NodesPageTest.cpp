// SPDX-License-Identifier: MIT
// docs/nodes.md is what the tables of nodes and fields make of the library; SCOPIX_PAGES=FOLDER writes it
// there.
#include "fields/NodeDescription.h"

#include <scopix/editing/SpxText.h>
#include <scopix/editing/descriptions/SpxFieldDescription.h>
#include <xsg/fields/SoSFBox3f.h>
#include <xsg/nodes/base/SoNode.h>

#include <gtest/gtest.h>

#include <QFile>

using namespace inspector;

namespace
{

const char* const Start = R"(# Nodes

Every kind of node that a scene can be made of, with its fields. The name is the one in a scene file; in C++ it has
`So` before it. F1 opens this page at the selected node.

State that a node sets (a material, a transform, points, lights ...) is seen by what follows it in its group, and beyond
the group's end unless the group isolates it, as Separator, LevelOfDetail and Instances do.

![The shipped scene, data/scenes/showcase.xsg, which has them all](pictures/nodes/showcase.png)

The other pictures come from the small scenes in `tests/xsg/pictures/scenes`, which are worth opening; a test compares
the pictures with what the library draws, and this makes them again:

    SCOPIX_PICTURES=docs/pictures/nodes QT_QPA_PLATFORM=offscreen build/debug/bin/test_xsg_pictures --gtest_filter=*Looks*
)";

const char* const End = R"(
## About this page

It is made of the library and of the table from which the panel's tool tips come. A test compares, and this makes it
again:

    SCOPIX_PAGES=docs QT_QPA_PLATFORM=offscreen build/debug/bin/test_plugins_inspector --gtest_filter=NodesPage.*
)";

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), int(view.size()));
}

QString defaultOf(const SoField& field)
{
    const auto* box = dynamic_cast<const SoSFBox3f*>(&field);
    if (box && box->getValue().isEmpty())
        return QStringLiteral("empty");
    return SpxText::ofField(field).replace('|', QLatin1String("\\|"));
}

QString tableOf(const SoNode& node)
{
    const SoFieldData* data = node.getFieldData();
    QString table;
    for (int i = 0; i < data->getNumFields(); ++i) {
        const SoField& field = *data->getField(&node, i);
        const SpxFieldDescription* known = SpxFieldDescription::find(field);
        table +=
            QStringLiteral("| `%1` | %2 | `%3` | %4 |\n")
                .arg(SpxText::toQString(field.getName()), SpxText::toQString(field.getTypeId().getName()),
                     defaultOf(field), known ? text(known->meaning) : QString());
    }
    return table.isEmpty() ? table : "\n| field | type | default | |\n|---|---|---|---|\n" + table;
}

// They show nothing themselves.
bool hasALook(const QString& node)
{
    return node != QLatin1String("Info") && node != QLatin1String("UnknownNode");
}

QString sectionOf(const NodeDescription& described)
{
    const QString name = text(described.node);
    const QString picture = QStringLiteral("pictures/nodes/%1.png").arg(name);
    const SoType type = SoType::fromName(SbName(std::string(described.node).c_str()));
    const SoRef<SoNode> node(dynamic_cast<SoNode*>(type.createInstance()));
    QString section = "\n### " + name + '\n';
    if (hasALook(name) && QFile::exists(QStringLiteral(SCOPIX_SOURCE_DIR "/docs/") + picture))
        section += QStringLiteral("\n![A picture made with %1](%2)\n").arg(name, picture);
    return section + '\n' + text(described.meaning) + '\n' + (node ? tableOf(*node) : QString());
}

QString page()
{
    QString made = QString::fromUtf8(Start);
    QString group;
    for (const NodeDescription& each : allNodeDescriptions()) {
        if (text(each.group) != group)
            made += "\n## " + text(each.group) + '\n';
        group = text(each.group);
        made += sectionOf(each);
    }
    return made + QString::fromUtf8(End);
}

} // namespace

TEST(NodesPage, IsMadeOfTheTables)
{
    const QString folder = qEnvironmentVariable("SCOPIX_PAGES");
    if (!folder.isEmpty()) {
        QFile file(folder + "/nodes.md");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(page().toUtf8());
    }
    QFile file(QStringLiteral(SCOPIX_SOURCE_DIR "/docs/nodes.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList present = QString::fromUtf8(file.readAll()).split('\n');
    const QStringList made = page().split('\n');
    for (int i = 0; i < std::min(present.size(), made.size()); ++i)
        ASSERT_EQ(present[i].toStdString(), made[i].toStdString()) << "line " << i + 1;
    EXPECT_EQ(present.size(), made.size());
}

TEST(NodesPage, EveryTypeOfNodeIsDescribed)
{
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        const SoRef<SoNode> node(type.canCreateInstance() ? dynamic_cast<SoNode*>(type.createInstance())
                                                          : nullptr);
        if (node) {
            EXPECT_TRUE(findNodeDescription(*node)) << type.getName().getString();
        }
    }
}
