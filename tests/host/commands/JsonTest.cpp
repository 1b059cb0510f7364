// SPDX-License-Identifier: MIT
// What print --json says is all that a scene file holds.
#include "CommandRun.h"

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/paths/ChildTable.h>

namespace
{

/// Makes the scene that the JSON describes.
class Rebuilt
{
public:
    explicit Rebuilt(const QByteArray& text)
    {
        const QJsonDocument document = QJsonDocument::fromJson(text);
        EXPECT_TRUE(document.isObject());
        root = make(document.object());
        fill(document.object(), root.get());
        for (const auto& [field, paths] : m_references)
            refer(*field, paths);
    }
    SoRef<SoNode> root;

private:
    static SbString bytes(const QJsonValue& value) { return SbString(value.toString().toStdString()); }

    static SoRef<SoNode> make(const QJsonObject& object)
    {
        const SbName name(bytes(object["type"]));
        const SoType type = SoType::fromName(name);
        SoRef<SoNode> node(type.canCreateInstance() ? static_cast<SoNode*>(type.createInstance())
                                                    : new SoUnknownNode(name));
        node->setName(SbName(bytes(object["name"])));
        return node;
    }
    void fill(const QJsonObject& object, SoNode* node)
    {
        setFields(object["fields"].toObject(), node);
        for (const QJsonValue& value : object["children"].toArray()) {
            const QJsonObject child = value.toObject();
            SbSentence problem;
            if (child.contains("same")) {
                xsg::SceneLookup lookup(root.get());
                SoNode* same = lookup.find(SoScenePath(bytes(child["same"]).str()), problem);
                ASSERT_TRUE(same) << problem.getText();
                node->asGroup()->addChild(same);
                continue;
            }
            const SoRef<SoNode> made = make(child);
            node->asGroup()->addChild(made.get());
            fill(child, made.get());
        }
    }
    void setFields(const QJsonObject& fields, SoNode* node)
    {
        for (auto at = fields.begin(); at != fields.end(); ++at) {
            const QJsonObject state = at.value().toObject();
            SoField* field = node->getField(SbName(at.key().toLatin1().constData()));
            ASSERT_TRUE(field) << qPrintable(at.key());
            EXPECT_EQ(state["type"].toString().toStdString(), field->getTypeId().getName().getString());
            if (state.contains("follows")) {
                xsg::SceneLookup lookup(root.get());
                SbSentence problem;
                SoField* source = lookup.findField(SoScenePath(bytes(state["follows"]).str()), problem);
                ASSERT_TRUE(source) << problem.getText();
                EXPECT_TRUE(field->connectFrom(source));
            }
            const bool isReference =
                field->isOfType(SoSFNode::getClassTypeId()) || field->isOfType(SoMFNode::getClassTypeId());
            if (isReference && !state["default"].toBool())
                m_references[field] = state["value"].toString();
            const bool isSet = isReference || state["default"].toBool() ||
                               field->setWithoutPropagation(bytes(state["value"]));
            EXPECT_TRUE(isSet) << qPrintable(at.key());
            field->setIgnored(state["ignored"].toBool());
        }
    }
    // To nodes that may come later.
    void refer(SoField& field, QString paths)
    {
        std::vector<SoRef<SoNode>> nodes;
        for (const QString& path : paths.remove("[ ").remove(" ]").split(", ")) {
            SbSentence problem;
            xsg::SceneLookup lookup(root.get());
            nodes.emplace_back(path == "NULL" ? nullptr
                                              : lookup.find(SoScenePath(path.toStdString()), problem));
            EXPECT_EQ(problem, "");
        }
        if (auto* list = dynamic_cast<SoMFNode*>(&field))
            list->setValues(std::move(nodes));
        else
            static_cast<SoSFNode&>(field).setValue(nodes.front());
    }

    std::map<SoField*, QString> m_references;
};

using PrintJson = CommandRun;

} // namespace

TEST_F(PrintJson, ParsedBackEqualsTheScene)
{
    run({"convert", model("lighthouse.glb"), "lighthouse.xsg"});
    run({"convert", model("crate.gltf"), "crate.xsg"});
    QFile::copy(QStringLiteral(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg"),
                folder.filePath("showcase.xsg"));
    for (const char* name : {"lamp.xsg", "spare.xsg", "lighthouse.xsg", "crate.xsg", "showcase.xsg"}) {
        const Rebuilt rebuilt(run({"print", "--json", name}).out);
        std::string error;
        const SoRef<SoNode> read = SoSceneFile::read(folder.filePath(name).toStdString(), error);
        ASSERT_TRUE(read) << error;
        const std::string is = SoSceneFile::writeText(rebuilt.root.get());
        const std::string wanted = SoSceneFile::writeText(read.get());
        EXPECT_TRUE(is == wanted) << name << "\n" << is.substr(0, 2000) << "\n" << wanted.substr(0, 2000);
    }
}
