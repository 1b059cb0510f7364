// SPDX-License-Identifier: MIT
// The example of a tool, in the real window.
#include "panels/SceneTreeView.h"
#include "window/MainWindow.h"

#include <support/Session.h>
#include <support/Waiting.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <QListWidget>

namespace
{

class Bookmarks : public testing::Test
{
protected:
    Bookmarks()
        : m_session([](HostServices& services, UserNotifier& notifier) {
            return std::make_unique<MainWindow>(services, notifier);
        })
    {
        EXPECT_TRUE(m_session.host.plugins().loadPlugin(QStringLiteral(BOOKMARKS_FILE)));
        m_root->addChild(m_cube);
        m_root->addChild(m_sphere);
        m_cube->setName("Box");
        window().setScene(m_root.get(), "test");
        m_session.settle();
    }
    ~Bookmarks() override
    {
        window().setScene(nullptr, "none");
        m_session.host.services().clearSelection();
    }

    MainWindow& window() { return static_cast<MainWindow&>(m_session.host.window()); }
    QListWidget* list() { return m_session.dock("Bookmarks")->findChild<QListWidget*>(); }
    void bookmark(SoNode* node)
    {
        m_session.host.services().select(node);
        m_session.settle();
        QTest::keyClick(&window(), Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
        m_session.settle();
    }
    QStringList rows()
    {
        QStringList texts;
        for (int i = 0; i < list()->count(); ++i)
            texts += list()->item(i)->text();
        return texts;
    }
    QString numberInTree(const SoNode* node)
    {
        const SceneTreeModel& model = window().getTree().getModel();
        for (int column = 0; column < model.columnCount(); ++column) {
            if (model.headerData(column, Qt::Horizontal) == "Bookmark")
                return model.indexOf(node).siblingAtColumn(column).data().toString();
        }
        return "no column";
    }

    Session m_session;
    SoRef<SoSeparator> m_root{new SoSeparator};
    SoCube* m_cube = new SoCube;
    SoSphere* m_sphere = new SoSphere;
};

} // namespace

TEST_F(Bookmarks, AKeyAddsWhatIsSelectedAndTakesItAway)
{
    bookmark(m_cube);
    bookmark(m_sphere);
    EXPECT_EQ(rows(), QStringList({"Box", "Sphere"}));
    EXPECT_EQ(numberInTree(m_sphere), "2");

    bookmark(m_cube);
    EXPECT_EQ(rows(), QStringList("Sphere"));
    EXPECT_EQ(numberInTree(m_sphere), "1");
    EXPECT_EQ(numberInTree(m_cube), "");
}

TEST_F(Bookmarks, ARenamedNodeKeepsItsRow)
{
    bookmark(m_sphere);
    m_sphere->setName("Ball");
    EXPECT_TRUE(waitFor([this] { return rows() == QStringList("Ball"); }));
}

TEST_F(Bookmarks, EnterSelectsTheNode)
{
    bookmark(m_cube);
    m_session.host.services().select(m_sphere);
    list()->setFocus();
    list()->setCurrentRow(0);
    QTest::keyClick(list(), Qt::Key_Return);
    m_session.settle();
    EXPECT_EQ(m_session.host.services().selectedNode(), m_cube);
}

TEST_F(Bookmarks, ANodeThatEndsIsTakenOut)
{
    bookmark(m_cube);
    bookmark(m_sphere);
    m_session.host.services().clearSelection();
    m_root->removeChild(0); // its only place
    m_session.settle();
    EXPECT_EQ(rows(), QStringList("Sphere"));

    window().setScene(nullptr, "none");
    m_root = nullptr;
    m_session.settle();
    EXPECT_EQ(list()->count(), 0);
}
