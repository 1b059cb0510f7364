// SPDX-License-Identifier: MIT
// A random walk of edits, undo, reverting and showing former values: what the dock tells always equals a full
// comparison with the scene as it was opened. SCOPIX_WALK_SEED walks another way, SCOPIX_WALK_STEPS another
// length.
#include "ChangeParts.h"

#include <scopix/editing/SpxFieldEdit.h>
#include <support/RandomWalk.h>
#include <support/Waiting.h>

#include <QRandomGenerator>
#include <QTemporaryDir>

namespace
{

constexpr auto Scene = R"(Separator "top" {
    Material "paint" {
        transparency: 0.25
        diffuseColor: [ 1 0 0, 0 1 0, 0 0 1 ]
    }
    Separator "left" {
        Cube "box" {}
        Cube {}
        Cube { width: 3 }
        Separator { Sphere "inner" { radius: 0.5 } Cone {} }
    }
    Separator "right" { Sphere "ball" {} Material {} Points { points: [ 0 0 0, 1 2 3 ] } PointSet {} }
}
)";

class ChangesWalk : public ChangesWindow, public testing::WithParamInterface<bool>
{
protected:
    int random(int below) { return static_cast<int>(m_random.bounded(static_cast<quint32>(below))); }

    SoPath randomPath()
    {
        return ::randomPath(window.getScene(), [this](int below) { return random(below); });
    }
    // Null where the node has none.
    SoField* randomField()
    {
        const SoNode* node = randomPath().getTail();
        const SoFieldData* data = node->getFieldData();
        return data->getNumFields() == 0 ? nullptr : data->getField(node, random(data->getNumFields()));
    }
    void editField()
    {
        SoField* field = randomField();
        if (!field)
            return;
        if (random(6) == 0)
            return edit(*field,
                        [&] { SpxFieldEdit::setSource(field, random(3) == 0 ? nullptr : randomField()); });
        edit(*field, [&] {
            auto* list = dynamic_cast<SoMField*>(field);
            if (list && random(2) == 0)
                random(2) == 0 ? list->insertSpace(random(list->getNum() + 1), 1) : list->deleteValues(0, 1);
            else if (random(8) == 0)
                field->setIgnored(!field->isIgnored());
            else
                field->set(SbString(std::to_string(random(4)) + (random(2) ? " 1 1" : "")));
        });
    }
    void editStructure()
    {
        services.selectPaths({randomPath()});
        switch (random(9)) {
        case 0:
            return key(Qt::Key_D, Qt::ControlModifier);
        case 1:
            return key(Qt::Key_Delete);
        case 2:
            return key(Qt::Key_G, Qt::ControlModifier);
        case 3:
            return key(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
        case 4:
            return editing.rename(randomPath(), QStringLiteral("name %1").arg(random(5)));
        case 5:
            return key(Qt::Key_Up, Qt::AltModifier);
        case 6:
            return key(Qt::Key_Right, Qt::AltModifier);
        case 7:
            return key(Qt::Key_Left, Qt::AltModifier);
        default:
            return editing.add(SoCube::getClassTypeId());
        }
    }
    void actInDock()
    {
        if (list.model()->rowCount() == 0)
            return;
        list.setCurrentIndex(list.model()->index(random(list.model()->rowCount()), 0));
        switch (random(5)) {
        case 0:
            return keyInList(Qt::Key_Space);
        case 4:
            return takeOver();
        case 1:
            press("changesBefore");
            return press("changesBefore");
        case 2:
            list.sortByColumn(random(ChangesModel::ColumnCount), Qt::AscendingOrder);
            return;
        default:
            return keyInList(Qt::Key_Delete);
        }
    }
    // A line of what the scene was at first, from its file.
    void takeOver()
    {
        changes.compareWith(m_file);
        if (!waitFor([this] { return changes.isComparing(); }))
            return;
        settle();
        if (list.model()->rowCount() > 0) {
            list.setCurrentIndex(list.model()->index(random(list.model()->rowCount()), 0));
            keyInList(Qt::Key_Delete);
        }
        changes.showEdits();
        settle();
    }
    void step()
    {
        switch (random(6)) {
        case 0:
            return services.undoStack().undo();
        case 1:
            return services.undoStack().redo();
        case 2:
            return GetParam() ? editStructure() : editField();
        case 3:
            return actInDock();
        default:
            return editField();
        }
    }
    std::string fullComparison() const
    {
        std::string error;
        const SoRef<SoNode> before = SoSceneFile::readText(m_first, "first", error);
        return xsg::PatchText::write(xsg::compareScenes(before.get(), window.getScene()));
    }
    void check()
    {
        settle();
        ASSERT_FALSE(services.preview().isShowingFormer());
        const ChangeKeySet keys = all();
        ASSERT_EQ(xsg::PatchText::write(changes.getEdits().makePatch(keys)), fullComparison());
        ASSERT_EQ(SoSceneFile::writeText(changes.getEdits().makeFormerScene().get()), m_first);
        ASSERT_EQ(list.model()->rowCount(), static_cast<int>(keys.size()));
        if (!GetParam())
            compareRows();
    }
    // One row for each field that differs.
    void compareRows()
    {
        std::string error;
        const SoRef<SoNode> before = SoSceneFile::readText(m_first, "first", error);
        std::set<QString> paths;
        for (xsg::SceneChange& change : xsg::compareScenes(before.get(), window.getScene())) {
            change.path.setField(change.path.getField());
            paths.insert(QString::fromStdString(change.path.toText()));
        }
        std::set<QString> shown;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            shown.insert(list.model()->index(row, 0).data().toString());
        ASSERT_EQ(shown, paths);
    }

    QRandomGenerator m_random{static_cast<quint32>(fromEnvironment("SCOPIX_WALK_SEED", 1))};
    std::string m_first;
    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath("first.xsg");
};

TEST_P(ChangesWalk, AlwaysEqualsAFullComparison)
{
    show(Scene);
    m_first = text();
    std::string error;
    ASSERT_TRUE(SoSceneFile::write(window.getScene(), m_file.toStdString(), error)) << error;
    const int steps = fromEnvironment("SCOPIX_WALK_STEPS", 300);
    std::size_t most = 0;
    for (int i = 0; i < steps && !HasFatalFailure(); ++i) {
        step();
        SCOPED_TRACE(i);
        check();
        most = std::max(most, all().size());
    }
    EXPECT_GT(most, 3U);
    // Reverting all gives the first bytes back.
    for (int round = 0; round < 8 && !all().empty(); ++round) {
        panel.getModel().setTicked(all(), true);
        press("changesRevert");
    }
    EXPECT_TRUE(all().empty());
    EXPECT_EQ(text(), m_first);
    services.undoStack().setIndex(0);
    settle();
    EXPECT_TRUE(all().empty());
}

INSTANTIATE_TEST_SUITE_P(Of, ChangesWalk, testing::Bool(), [](const testing::TestParamInfo<bool>& info) {
    return info.param ? "FieldsAndStructure" : "Fields";
});

} // namespace
