// SPDX-License-Identifier: MIT
// Panels that stay with their nodes, comparing two, and the values before the edits.
#include "plugins/Inspector/InspectorSession.h"

#include "panels/SceneTreeView.h"
#include "window/MainWindow.h"

#include <scopix/SpxPreviewServices.h>
#include <xsg/nodes/groups/SoSeparator.h>

#include <QStatusBar>

namespace
{

class Pinned : public testing::Test
{
protected:
    Pinned()
        : session([](HostServices& services,
                     UserNotifier& notifier) { return std::make_unique<MainWindow>(services, notifier); },
                  340)
    {
        session.material->setName("Slate");
        other->setName("Water");
        root->addChild(session.material.get());
        root->addChild(other.get());
        static_cast<MainWindow&>(session.host.window()).setScene(root.get(), "test");
        session.settle();
        session.selectNode(session.material.get());
    }
    ~Pinned() override { session.host.services().clearSelection(); }

    QList<QDockWidget*> pins()
    {
        QList<QDockWidget*> found;
        for (auto* dock : session.host.window().findChildren<QDockWidget*>()) {
            if (dock->objectName().startsWith("pinnedPanel"))
                found += dock;
        }
        return found;
    }
    QDockWidget* pin()
    {
        session.click(session.panel()->findChild<QToolButton*>("pinButton"));
        return pins().isEmpty() ? nullptr : pins().last();
    }
    QWidget* rowIn(QWidget* panel, const char* field)
    {
        for (auto* row : panel->findChildren<QWidget*>(QStringLiteral("row"))) {
            if (row->accessibleName().startsWith(QLatin1String(field) + QLatin1Char(',')))
                return row;
        }
        return nullptr;
    }
    void showAlone(QDockWidget* dock)
    {
        dock->setFloating(true);
        dock->resize(360, 500);
        session.settle();
    }

    SoRef<SoSeparator> root{new SoSeparator};
    SoRef<SoMaterial> other{new SoMaterial};
    InspectorSession session;
    SoMaterial& material = *session.material;
};

} // namespace

TEST_F(Pinned, APanelStaysWithItsNodeAndEditsItWithoutSelectingIt)
{
    QDockWidget* dock = pin();
    ASSERT_TRUE(dock);
    EXPECT_EQ(dock->windowTitle(), "Slate (pinned)");
    showAlone(dock);
    session.selectNode(other.get());
    auto* number = rowIn(dock, "shininess")->findChild<QLineEdit*>("number0");
    session.enter(number, "0.5");
    EXPECT_EQ(material.shininess.getValue(), 0.5F);
    EXPECT_EQ(session.host.services().selectedNode(), other.get());
    EXPECT_EQ(session.stack().count(), 1);
    session.undo();
    EXPECT_TRUE(material.shininess.isDefault());
    EXPECT_TRUE(session.comesTrue([&] { return number->text() == "0.2"; }));
}

TEST_F(Pinned, AnyNumberButEachNodeOnce)
{
    pin();
    session.selectNode(other.get());
    pin();
    EXPECT_EQ(pins().size(), 2);
    session.selectNode(&material);
    pin();
    EXPECT_EQ(pins().size(), 2);
    pins().first()->close();
    EXPECT_TRUE(session.comesTrue([&] { return pins().size() == 1; }));
}

TEST_F(Pinned, TheEndOfTheNodeIsSaidInASentence)
{
    session.selectNode(other.get());
    QDockWidget* dock = pin();
    session.selectNode(&material);
    root->removeChild(1);
    session.settle();
    other = {};
    session.settle();
    const auto* end = dock->findChild<QLabel*>("end");
    ASSERT_TRUE(end);
    EXPECT_EQ(end->text(), QString::fromUtf8("“Water” was removed from the scene and no longer exists; close "
                                             "this panel."));
    EXPECT_TRUE(dock->findChildren<QWidget*>("row").isEmpty());
}

TEST_F(Pinned, AProfileWithoutThePlugInClosesAllPins)
{
    pin();
    session.host.plugins().profiles().read();
    ASSERT_TRUE(session.host.plugins().profiles().useProfile("Classic"));
    EXPECT_TRUE(session.comesTrue([&] { return pins().isEmpty(); }));
    ASSERT_TRUE(session.host.plugins().profiles().useProfile("Default"));
    EXPECT_TRUE(session.comesTrue([&] { return session.panel(); }));
    EXPECT_TRUE(pins().isEmpty());
}

TEST_F(Pinned, ComparingMarksWhatDiffersAndCopiesItAcross)
{
    other->shininess.setValue(0.75F);
    QDockWidget* dock = pin();
    showAlone(dock);
    session.click(dock->findChild<QToolButton*>("compare"));
    session.selectNode(other.get());
    EXPECT_EQ(dock->findChild<QLabel*>("comparedWith")->text(), "with Water");
    const auto offer = [&](QWidget* panel, const char* field) {
        return rowIn(panel, field)->findChild<QToolButton*>("takeCompared");
    };
    ASSERT_TRUE(offer(dock, "shininess"));
    EXPECT_TRUE(offer(dock, "shininess")->isVisible());
    EXPECT_FALSE(offer(dock, "transparency")->isVisible());
    ASSERT_TRUE(offer(session.panel(), "shininess"));
    EXPECT_TRUE(offer(session.panel(), "shininess")->isVisible());

    session.click(offer(session.panel(), "shininess"));
    EXPECT_EQ(other->shininess.getValue(), material.shininess.getValue());
    EXPECT_EQ(session.stack().count(), 1);
    EXPECT_TRUE(session.comesTrue([&] { return !offer(dock, "shininess")->isVisible(); }));
    session.undo();
    EXPECT_EQ(other->shininess.getValue(), 0.75F);
    EXPECT_TRUE(session.comesTrue([&] { return offer(dock, "shininess")->isVisible(); }));
    session.click(offer(dock, "shininess"));
    EXPECT_EQ(material.shininess.getValue(), 0.75F);
    session.click(dock->findChild<QToolButton*>("compare"));
    material.shininess.setValue(0.1F);
    session.settle();
    EXPECT_FALSE(offer(session.panel(), "shininess")->isVisible());
}

TEST_F(Pinned, TwoPinsCompareWithOneAnotherWhateverIsSelected)
{
    const auto compareIn = [](QDockWidget* dock) { return dock->findChild<QToolButton*>("compare"); };
    const auto comparedWith = [](QDockWidget* dock) {
        return dock->findChild<QLabel*>("comparedWith")->text();
    };
    const auto offers = [this](QWidget* panel, const char* field) {
        return rowIn(panel, field)->findChild<QToolButton*>("takeCompared")->isVisibleTo(panel);
    };
    SoRef<SoMaterial> third(new SoMaterial);
    third->setName("Third");
    root->addChild(third.get());
    QDockWidget* first = pin();
    session.selectNode(other.get());
    QDockWidget* second = pin();
    session.selectNode(third.get());
    compareIn(first)->click();
    EXPECT_EQ(comparedWith(first), "with Third");
    compareIn(second)->click();
    EXPECT_EQ(comparedWith(first), "with " + QString(other->getName().getString()));
    EXPECT_EQ(comparedWith(second), "with Slate");
    other->shininess.setValue(0.75F);
    EXPECT_TRUE(session.comesTrue([&] { return offers(first, "shininess") && offers(second, "shininess"); }));
    EXPECT_FALSE(offers(session.panel(), "shininess"));

    QDockWidget* last = pin();
    compareIn(last)->click(); // takes the place of the one that was chosen first
    EXPECT_FALSE(compareIn(first)->isChecked());
    EXPECT_EQ(comparedWith(first), "");
    EXPECT_EQ(comparedWith(second), "with Third");
    last->close();
    EXPECT_TRUE(session.comesTrue([&] { return pins().size() == 2; }));
    EXPECT_EQ(comparedWith(second), "with Third"); // which is selected
    EXPECT_TRUE(offers(session.panel(), "shininess"));
}

TEST_F(Pinned, TheValuesBeforeTheEditsShowAndNothingCanBeEditedMeanwhile)
{
    const float before = material.shininess.getValue();
    session.enter(session.number("shininess"), "0.75");
    auto& window = static_cast<MainWindow&>(session.host.window());
    auto* button = session.panel()->findChild<QToolButton*>("before");
    session.click(button);
    EXPECT_TRUE(button->isChecked());
    EXPECT_EQ(material.shininess.getValue(), before);
    EXPECT_TRUE(session.comesTrue([&] { return session.number("shininess")->text() == "0.2"; }));
    EXPECT_TRUE(window.findChild<QLabel*>("beforeNote")->isVisible());

    QTest::mouseClick(session.number("shininess"), Qt::LeftButton);
    QTest::keyClicks(session.number("shininess"), "0.5\r");
    session.settle();
    EXPECT_EQ(material.shininess.getValue(), before);
    EXPECT_TRUE(window.statusBar()->currentMessage().startsWith("Nothing can be edited"));
    QTest::keyClick(&window.getTree(), Qt::Key_Z, Qt::ControlModifier);
    session.settle();
    EXPECT_EQ(session.stack().index(), 1);
    EXPECT_EQ(session.stack().count(), 1);

    session.click(button);
    EXPECT_FALSE(button->isChecked());
    EXPECT_EQ(material.shininess.getValue(), 0.75F);
    EXPECT_FALSE(window.findChild<QLabel*>("beforeNote")->isVisible());
    session.undo();
    EXPECT_EQ(material.shininess.getValue(), before);
}

TEST_F(Pinned, TheKeyBShowsThemWhileTheTreeHasTheFocus)
{
    const float before = material.shininess.getValue();
    session.enter(session.number("shininess"), "0.75");
    auto& window = static_cast<MainWindow&>(session.host.window());
    window.getTree().setFocus();
    QTest::keyClick(&window.getTree(), Qt::Key_B);
    EXPECT_EQ(material.shininess.getValue(), before);
    QTest::keyClick(&window.getTree(), Qt::Key_B);
    EXPECT_EQ(material.shininess.getValue(), 0.75F);
    session.selectNode(other.get());
    window.getTree().setFocus();
    QTest::keyClick(&window.getTree(), Qt::Key_B);
    EXPECT_TRUE(window.statusBar()->currentMessage().startsWith("No value of what is selected"));
    EXPECT_FALSE(SpxPreviewServices::getInstance()->isShowingFormer());
}
