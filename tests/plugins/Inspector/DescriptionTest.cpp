// SPDX-License-Identifier: MIT
// The table of what fields mean: complete, and the words that docs/nodes.md has.
#include "fields/FieldOrder.h"
#include "fields/NodeDescription.h"

#include <scopix/editing/descriptions/SpxFieldDescription.h>
#include <xsg/core/SoField.h>
#include <xsg/nodes/base/SoNode.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>

using namespace inspector;

namespace
{

using Key = std::pair<QString, QString>;

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), int(view.size()));
}

// Node and field, and the last column of the page's tables.
std::map<Key, QString> meaningsOfThePage()
{
    QFile page(QStringLiteral(SCOPIX_SOURCE_DIR "/docs/nodes.md"));
    EXPECT_TRUE(page.open(QIODevice::ReadOnly));
    const QRegularExpression heading(QStringLiteral("^### (\\w+)$"));
    const QRegularExpression row(QStringLiteral("^\\| `(\\w+)` \\| \\w+ \\| `.*?` \\| (.*) \\|$"));
    std::map<Key, QString> meanings;
    QString node;
    for (const QString& line : QString::fromUtf8(page.readAll()).split('\n')) {
        const auto isHeading = heading.match(line);
        if (isHeading.hasMatch())
            node = isHeading.captured(1);
        const auto isRow = row.match(line);
        if (isRow.hasMatch())
            meanings[{node, isRow.captured(1)}] = isRow.captured(2);
    }
    return meanings;
}

} // namespace

// A meaning that is not marked for translation is missing in the catalogue, and stays in English.
TEST(Descriptions, OfNodesAreInTheCatalogue)
{
    QFile file(QStringLiteral(SCOPIX_SOURCE_DIR "/i18n/SpxInspector_de.ts"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString catalogue = QString::fromUtf8(file.readAll());
    for (const NodeDescription& each : allNodeDescriptions()) {
        const QString source = text(each.meaning).toHtmlEscaped().replace("&quot;", "\"");
        EXPECT_TRUE(catalogue.contains("<source>" + source + "</source>")) << source.toStdString();
    }
}

TEST(Descriptions, AreThoseOfThePageOfNodes)
{
    std::map<Key, QString> table;
    for (const SpxFieldDescription& each : SpxFieldDescription::getAll())
        table[{text(each.node), text(each.field)}] = text(each.meaning);
    EXPECT_EQ(table.size(), SpxFieldDescription::getAll().size());
    const auto page = meaningsOfThePage();
    EXPECT_GT(page.size(), 80U);
    for (const auto& [key, meaning] : page) {
        EXPECT_EQ(qPrintable(table[key]), meaning.toStdString()) << qPrintable(key.first + '.' + key.second);
        EXPECT_FALSE(meaning.isEmpty()) << qPrintable(key.first + '.' + key.second);
    }
    EXPECT_EQ(table.size(), page.size());
}

TEST(Descriptions, NameFieldsThatThereAre)
{
    for (const SpxFieldDescription& each : SpxFieldDescription::getAll()) {
        const SoType type = SoType::fromName(SbName(std::string(each.node).c_str()));
        ASSERT_FALSE(type.isBad()) << each.node;
        const SoRef<SoNode> node(dynamic_cast<SoNode*>(type.createInstance()));
        const SoField* field = node->getField(SbName(std::string(each.field).c_str()));
        ASSERT_TRUE(field) << each.node << '.' << each.field;
        EXPECT_EQ(SpxFieldDescription::find(*field), &each);
        EXPECT_LE(each.softLow, each.softHigh);
        EXPECT_LE(each.hardLow, each.softLow) << each.field;
        EXPECT_GE(each.hardHigh, each.softHigh) << each.field;
    }
}

TEST(Descriptions, OrderTheFieldsAndKeepThoseThatAreNotDescribed)
{
    const SoRef<SoNode> cone(dynamic_cast<SoNode*>(SoType::fromName("Cone").createInstance()));
    EXPECT_EQ(fieldsInOrder(*cone).size(), std::size_t(cone->getFieldData()->getNumFields()));
}
