// SPDX-License-Identifier: MIT
// Profiles are switched while the user is in the middle of an edit: the edit is applied or dropped, once and
// whole, and nothing of the editor stays behind.
#include <support/Session.h>

#include <support/SoFieldGallery.h>
#include <xsg/fields/SoMFVec3f.h>
#include <xsg/nodes/properties/SoPoints.h>

#include <QTableWidget>
#include <QToolBar>

namespace
{

class ProfileSwitch : public ::testing::Test
{
protected:
    ProfileSwitch()
    {
        m_session.host.plugins().profiles().read();
        m_points->points.setValues({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
        Session::settle();
    }

    SoSFFloat& transparency() { return m_session.material->transparency; }
    QTableWidget* table() { return m_session.dock()->findChild<QTableWidget*>(); }
    void switchTo(const char* profile)
    {
        HostPluginsManager& plugins = m_session.host.plugins();
        plugins.setActiveProfile(plugins.profiles().findProfile(profile));
        Session::settle();
    }
    // Types into a cell and leaves it open.
    void typeIntoCell(int row, int column, const QString& text)
    {
        const QPoint at = table()->visualRect(table()->model()->index(row, column)).center();
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, at);
        Session::settle();
        QWidget* cell = QApplication::focusWidget();
        ASSERT_TRUE(qobject_cast<QLineEdit*>(cell) && table()->isAncestorOf(cell));
        QTest::keyClick(cell, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(cell, text);
    }
    QStringList docks()
    {
        QStringList titles;
        for (const auto* dock : m_session.host.window().findChildren<QDockWidget*>())
            titles += dock->windowTitle();
        titles.sort();
        return titles;
    }

    SoRef<SoPoints> m_points{new SoPoints};
    Session m_session;
};

} // namespace

TEST_F(ProfileSwitch, AppliesATypedLineOnce)
{
    m_session.select(&transparency());
    m_session.typeAnew("0.25");
    switchTo("Measure");
    EXPECT_EQ(m_session.dock(), nullptr);
    EXPECT_EQ(m_session.host.services().selectedField(), &transparency());
    EXPECT_EQ(transparency().getValue(), 0.25F);
    EXPECT_EQ(m_session.stack().count(), 1);
    switchTo("Edit");
    ASSERT_TRUE(m_session.editorShown());
    EXPECT_EQ(m_session.input()->text().toFloat(), 0.25F);
    m_session.stack().undo();
    Session::settle();
    EXPECT_EQ(transparency().getValue(), 0.F);
    EXPECT_EQ(m_session.input()->text().toFloat(), 0.F);
}

TEST_F(ProfileSwitch, EndsADragWhoseHandleIsStillHeld)
{
    for (const bool live : {true, false}) {
        transparency().setValue(0.F);
        m_session.select(&transparency());
        m_session.stack().clear();
        m_session.inEditor<QCheckBox>()->setChecked(live);
        float switched = -1;
        int steps = 0;
        m_session.drag(3, 6, [&] {
            if (++steps != 2)
                return;
            switchTo("Measure");
            switched = transparency().getValue();
        });
        // What is released is the handle of a slider that edits nothing any more.
        EXPECT_GE(switched, 0.F);
        EXPECT_EQ(transparency().getValue(), switched) << live;
        const int recorded = m_session.stack().count();
        EXPECT_EQ(recorded, switched > 0 ? 1 : 0) << live;

        switchTo("Edit");
        ASSERT_TRUE(m_session.editorShown());
        EXPECT_FALSE(m_session.inEditor<QSlider>()->isSliderDown()) << live;
        EXPECT_NEAR(m_session.input()->text().toFloat(), switched, 1e-6F);
        // The next edit is a step of its own.
        m_session.drag(2, 6, [] {});
        EXPECT_EQ(m_session.stack().count(), recorded + 1) << live;
        m_session.stack().undo();
        EXPECT_NEAR(transparency().getValue(), switched, 1e-6F) << live;
        Session::settle();
    }
}

TEST_F(ProfileSwitch, AppliesAnOpenCellOnce)
{
    m_session.select(&m_points->points);
    typeIntoCell(1, 2, "60");
    switchTo("Measure");
    EXPECT_EQ(m_session.dock(), nullptr);
    EXPECT_EQ(m_points->points[1], SbVec3f(4, 5, 60));
    EXPECT_EQ(m_session.stack().count(), 1);
    switchTo("Edit");
    ASSERT_TRUE(m_session.editorShown());
    EXPECT_EQ(table()->viewport()->findChild<QLineEdit*>(), nullptr);
    m_session.stack().undo();
    EXPECT_EQ(m_points->points[1], SbVec3f(4, 5, 6));
}

TEST_F(ProfileSwitch, HidesAnOpenPopup)
{
    const SoRef<SoFieldGallery> gallery{new SoFieldGallery};
    m_session.select(&gallery->sfMatrix);
    m_session.click(m_session.inEditor<QAbstractButton>("m_editButton"));
    QPointer<QWidget> popup = QApplication::activePopupWidget();
    ASSERT_TRUE(popup);
    const auto changes = gallery->sfMatrix.getChangeCount();
    switchTo("Measure");
    EXPECT_FALSE(popup && popup->isVisible());
    EXPECT_EQ(gallery->sfMatrix.getChangeCount(), changes);
    EXPECT_EQ(m_session.stack().count(), 0);
    m_session.selectNothing();
}

TEST_F(ProfileSwitch, AThousandTimesWithEditorsOpenLeavesNothingBehind)
{
    const auto changes = [this] {
        return transparency().getChangeCount() + m_points->points.getChangeCount();
    };
    const auto before = changes();
    const char* const profiles[] = {"Edit", "Measure", "Default"};
    std::map<QString, QStringList> docksOf;
    for (int i = 0; i < 1000; ++i) {
        // One value, a list, nothing.
        SoField* const fields[] = {&transparency(), &m_points->points, nullptr};
        SoField* const selected = fields[i / 3 % 3];
        m_session.select(selected);
        const QString profile = profiles[i % 3];
        switchTo(profile.toLatin1());
        ASSERT_EQ(m_session.host.services().selectedField(), selected);
        ASSERT_EQ(m_session.dock() && m_session.editorShown(), selected && profile != "Measure") << i;
        const QStringList known = docksOf.emplace(profile, docks()).first->second;
        ASSERT_EQ(docks(), known) << i;
        ASSERT_EQ(m_session.host.window().findChildren<QToolBar*>().size(), 1) << i;
    }
    EXPECT_EQ(docksOf["Edit"], (QStringList{"Field Editor", "Node Editor"}));
    EXPECT_TRUE(docksOf["Measure"].contains("Console"));
    EXPECT_EQ(docksOf["Default"].size(), docksOf["Edit"].size() + docksOf["Measure"].size());
    EXPECT_EQ(changes(), before);
    EXPECT_EQ(m_session.stack().count(), 0);
    EXPECT_EQ(m_session.host.notifier().errorCount(), 0);
}

TEST_F(ProfileSwitch, ThePlugInIsUnloadedAndLoadedWithAnEditorOpen)
{
    m_session.select(&transparency());
    for (int i = 0; i < 3; ++i) {
        m_session.host.plugins().unloadAll();
        EXPECT_EQ(m_session.dock(), nullptr);
        ASSERT_TRUE(m_session.host.plugins().loadPlugin(QStringLiteral(SCOPIX_PLUGIN)));
        EXPECT_TRUE(m_session.editorShown());
    }
}
