// SPDX-License-Identifier: MIT
// Works in the dock by the keyboard alone; where SCOPIX_PICTURES names a folder, pictures of it go there, for
// the documentation.
#include "ChangeParts.h"

#include <support/Waiting.h>

#include <xsg/actions/SoSearchAction.h>

#include <QTemporaryDir>

namespace
{

class ChangesPictures : public ChangesWindow
{
protected:
    ChangesPictures()
    {
        window.getView().show();
        window.resize(1200, 800);
        EXPECT_TRUE(open(QStringLiteral(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg")));
        window.resizeDocks({window.findChild<QDockWidget*>("sceneDock")}, {560}, Qt::Horizontal);
    }
    static void keep(const QString& name, QWidget& widget)
    {
        if (auto* whole = qobject_cast<QMainWindow*>(&widget))
            whole->statusBar()->clearMessage(); // which names a folder of this machine
        const QImage picture = widget.grab().toImage();
        EXPECT_FALSE(picture.isNull());
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        EXPECT_TRUE(folder.isEmpty() ||
                    picture.save(folder + QLatin1Char('/') + name + QStringLiteral(".png")));
    }
    std::vector<SoMaterial*> materials()
    {
        SoSearchAction search;
        search.setType(SoMaterial::getClassTypeId());
        search.setLimit(100);
        std::vector<SoMaterial*> found;
        for (const SoPath& path : search.apply(window.getScene()))
            found.push_back(static_cast<SoMaterial*>(path.getTail()));
        return found;
    }
    void makeChanges()
    {
        const auto all = materials();
        ASSERT_GT(all.size(), 4U);
        for (std::size_t i = 0; i < 4; ++i)
            edit(all[i]->diffuseColor,
                 [&] { all[i]->diffuseColor.setValue(SbVec3f(0.9F, 0.2F * float(i), 0.1F)); });
        edit(all[0]->shininess, [&] { all[0]->shininess.setValue(0.9F); });
        services.selectPaths({tree.pathTo(all[4])});
        editing.remove();
        settle();
    }
};

} // namespace

TEST_F(ChangesPictures, OfTheDockReachedByKeysAlone)
{
    makeChanges();
    changes.show();
    settle();
    ASSERT_EQ(list.model()->rowCount(), 6);
    QTest::keyClick(&list, Qt::Key_Home);
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(panel.getModel().getTicked().size(), 2U);
    // Tab reaches the filter and every button.
    std::set<QWidget*> reached;
    for (QWidget* at = list.nextInFocusChain(); at != &list; at = at->nextInFocusChain()) {
        if (panel.isAncestorOf(at) && at->focusPolicy() & Qt::TabFocus)
            reached.insert(at);
    }
    for (const char* name : {"changesRevert", "changesBefore", "changesMore"})
        EXPECT_TRUE(reached.count(&button(name))) << name;
    EXPECT_TRUE(reached.count(panel.findChild<QLineEdit*>("changesFilter")));
    settle();
    keep("changes", window);
    QTest::keyClick(&button("changesBefore"), Qt::Key_Space);
    EXPECT_TRUE(services.preview().isShowingFormer());
    QTest::keyClick(&button("changesBefore"), Qt::Key_Space);
    EXPECT_FALSE(services.preview().isShowingFormer());
    QTest::keyClick(&list, Qt::Key_Delete);
    settle();
    EXPECT_EQ(list.model()->rowCount(), 4) << "the two ticked ones are reverted";
}

TEST_F(ChangesPictures, SpaceTicksTheRowThatTabHasGoneTo)
{
    makeChanges();
    changes.show();
    settle();
    list.clearSelection();
    list.selectionModel()->setCurrentIndex(list.model()->index(0, 0), QItemSelectionModel::NoUpdate);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(panel.getModel().getTicked().size(), 1U);
}

TEST_F(ChangesPictures, OfAComparisonWithAnotherFile)
{
    QTemporaryDir folder;
    std::string error;
    const QString path = folder.filePath("earlier.xsg");
    ASSERT_TRUE(SoSceneFile::write(window.getScene(), path.toStdString(), error)) << error;
    makeChanges();
    changes.compareWith(path);
    ASSERT_TRUE(waitFor([this] { return changes.isComparing(); }));
    settle();
    EXPECT_GT(list.model()->rowCount(), 4);
    keep("changes-compare", window);
}
