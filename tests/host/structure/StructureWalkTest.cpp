// SPDX-License-Identifier: MIT
// A random walk of structural edits and of moves by handles over real models, done and undone, ends in the
// first file's bytes. SCOPIX_WALK_SEED walks another way, SCOPIX_WALK_STEPS another length.
#include "TreeParts.h"

#include "../view/HandleWalk.h"

#include <support/RandomWalk.h>

#include <QRandomGenerator>

namespace
{

constexpr int FewestNodes = 10;
constexpr int MostNodes = 400;

class StructureWalk : public TreeWindow, public testing::WithParamInterface<const char*>
{
protected:
    int random(int below) { return static_cast<int>(m_random.bounded(static_cast<quint32>(below))); }

    SoPath randomPath()
    {
        return ::randomPath(window.getScene(), [this](int below) { return random(below); });
    }
    Paths randomPaths()
    {
        Paths paths;
        for (int i = random(5) == 0 ? random(6) : 1; i > 0; --i)
            paths += randomPath();
        return paths;
    }
    static int countNodes(SoNode* node)
    {
        int count = 1;
        if (const SoGroup* group = node->asGroup()) {
            for (SoNode* child : group->getChildren())
                count += countNodes(child);
        }
        return count;
    }
    SoType randomType()
    {
        static const std::vector<SoType> types = SoType::getAllDerivedFrom(SoNode::getClassTypeId());
        for (;;) {
            const SoType type = types[static_cast<std::size_t>(random(static_cast<int>(types.size())))];
            if (type.canCreateInstance() && type.getName() != SbName("UnknownNode"))
                return type;
        }
    }

    void step()
    {
        const int count = countNodes(window.getScene());
        services.selectPaths(randomPaths());
        if (count > MostNodes)
            return key(Qt::Key_Delete);
        switch (random(count < FewestNodes ? 4 : 28)) {
        case 0:
            return key(Qt::Key_D, Qt::ControlModifier);
        case 1:
            return key(Qt::Key_V, Qt::ControlModifier);
        case 2:
            return editing.add(randomType());
        case 3:
            return key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        case 4:
            return key(Qt::Key_Delete);
        case 5:
            return key(Qt::Key_X, Qt::ControlModifier);
        case 6:
        case 7:
            return key(Qt::Key_C, Qt::ControlModifier);
        case 8:
            return key(Qt::Key_G, Qt::ControlModifier);
        case 9:
            return key(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
        case 10:
            return editing.insertAbove(randomType());
        case 11:
            return editing.rename(randomPath(), QStringLiteral("name %1").arg(random(20)));
        case 12:
            return editing.makeUnique();
        case 13:
            return key(Qt::Key_Up, Qt::AltModifier);
        case 14:
            return key(Qt::Key_Down, Qt::AltModifier);
        case 15:
            return key(Qt::Key_Left, Qt::AltModifier);
        case 16:
            return key(Qt::Key_Right, Qt::AltModifier);
        case 17:
            return drag();
        case 18:
            return key(Qt::Key_H);
        case 19:
            return key(Qt::Key_H, Qt::ShiftModifier);
        case 20:
            return key(Qt::Key_Slash);
        case 21:
            return editing.makePermanent();
        case 22:
        case 23:
        case 24:
        case 25:
            return move();
        case 26:
            return services.undoStack().undo();
        default:
            return services.undoStack().redo();
        }
    }
    void drag()
    {
        using structure::Transfer;
        const Transfer how[] = {Transfer::Move, Transfer::Copy, Transfer::Share};
        const SoPath to = randomPath();
        const SoGroup* group = to.getTail()->asGroup();
        const int index = random(2) == 0 || !group ? -1 : random(group->getNumChildren() + 1);
        editing.perform(structure::transfer(randomPaths(), to, index, how[random(3)]));
    }
    void move()
    {
        const int known = services.undoStack().index();
        useSomeHandle(window.getView(), window.getHandles(), [this](int below) { return random(below); });
        m_moves += services.undoStack().index() > known ? 1 : 0;
        window.getHandles().setMode(scopix::HandleMode::Select);
        tree.setFocus();
    }
    // Every row is the node that stands there.
    void compareRows(const QModelIndex& row)
    {
        const SceneTreeModel& model = tree.getModel();
        SoGroup* group = model.nodeAt(row)->asGroup();
        ASSERT_EQ(model.rowCount(row), group ? group->getNumChildren() : 0);
        for (int i = 0; i < model.rowCount(row); ++i) {
            ASSERT_EQ(model.nodeAt(model.index(i, 0, row)), group->getChild(i));
            compareRows(model.index(i, 0, row));
        }
    }

    int m_moves = 0;
    QRandomGenerator m_random{static_cast<quint32>(fromEnvironment("SCOPIX_WALK_SEED", 1))};
};

TEST_P(StructureWalk, EndsInTheFirstBytes)
{
    window.getView().hide(); // pictures take most of the time, and nothing here looks at them
    ASSERT_TRUE(open(QStringLiteral(SCOPIX_SOURCE_DIR "/data/") + QLatin1String(GetParam())));
    const std::string first = text();
    const int steps = fromEnvironment("SCOPIX_WALK_STEPS", 300);
    for (int i = 0; i < steps && !HasFailure(); ++i) {
        step();
        if (i % 50 == 0) {
            settle();
            compareRows(tree.getModel().index(0, 0));
        }
    }
    const std::string last = text();
    const int index = services.undoStack().index();
    EXPECT_GT(index, 0);
    EXPECT_GT(m_moves, 0);
    services.undoStack().setIndex(0);
    EXPECT_EQ(text(), first) << "with SCOPIX_WALK_SEED of " << qgetenv("SCOPIX_WALK_SEED").constData();
    services.undoStack().setIndex(index);
    EXPECT_EQ(text(), last);
    services.undoStack().setIndex(0);
    settle();
    compareRows(tree.getModel().index(0, 0));
    EXPECT_EQ(text(), first);
    EXPECT_TRUE(std::none_of(told.begin(), told.end(), [](const QString& sentence) {
        return sentence.contains("no longer in the history") || sentence.contains("went with");
    })) << told.join("\n").toStdString();
}

INSTANTIATE_TEST_SUITE_P(Models, StructureWalk,
                         testing::Values("scenes/showcase.xsg", "models/lighthouse.glb", "models/crate.obj",
                                         "models/rainbow.ply"),
                         [](const testing::TestParamInfo<const char*>& info) {
                             return QFileInfo(info.param).completeBaseName().toStdString();
                         });

} // namespace
