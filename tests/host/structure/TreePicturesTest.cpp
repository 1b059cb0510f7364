// SPDX-License-Identifier: MIT
// Each way to work in the tree, by real keys and clicks; where SCOPIX_PICTURES names a folder, pictures of it
// go there, for the documentation.
#include "TreeParts.h"
#include "panels/NodeFigures.h"
#include "panels/TreeRowDelegate.h"
#include "panels/TypeChooser.h"

#include <support/Waiting.h>

#include <QDockWidget>

namespace
{

class TreePictures : public TreeWindow
{
protected:
    TreePictures()
    {
        window.resize(1100, 720);
        EXPECT_TRUE(open(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/lighthouse.glb")));
        tree.setFocus();
    }
    static void keep(const QString& name, QWidget& widget)
    {
        const QImage picture = widget.grab().toImage();
        EXPECT_FALSE(picture.isNull());
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        EXPECT_TRUE(folder.isEmpty() ||
                    picture.save(folder + QLatin1Char('/') + name + QStringLiteral(".png")));
    }
    QWidget& panel() { return *tree.parentWidget(); }
    void unfold()
    {
        tree.setCurrentIndex(tree.getModel().index(0, 0));
        QTest::keyClick(&tree, Qt::Key_Asterisk);
    }
};

TEST_F(TreePictures, OfWhatIsHiddenAndLocked)
{
    unfold();
    const QModelIndex top = tree.getModel().index(0, 0);
    const SoNode* hidden = nullptr;
    for (QModelIndex at = tree.getModel().index(3, 0, top); at.isValid() && !hidden;
         at = tree.indexBelow(at)) {
        if (!SceneStates::canBeHidden(*tree.getModel().nodeAt(at)))
            continue;
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.getRows().eyeAt(at).center());
        hidden = tree.getModel().nodeAt(at);
    }
    ASSERT_TRUE(hidden);
    EXPECT_TRUE(states.isHidden(hidden));
    key(Qt::Key_L, Qt::ControlModifier);
    settle();
    keep("tree-hidden", window);
}

TEST_F(TreePictures, OfTheListToAddFrom)
{
    bool wasOpen = false;
    QTimer whenOpen;
    QObject::connect(&whenOpen, &QTimer::timeout, [&] {
        auto* chooser = window.findChild<TypeChooser*>();
        if (!chooser || !chooser->isVisible())
            return;
        whenOpen.stop();
        wasOpen = true;
        QTest::keyClicks(chooser->findChild<QLineEdit*>(), "light");
        keep("tree-add", *chooser);
        QTest::keyClick(chooser->findChild<QLineEdit*>(), Qt::Key_Escape);
    });
    whenOpen.start(0);
    tree.setCurrentIndex(tree.getModel().index(0, 0));
    const std::string before = text();
    key(Qt::Key_A, Qt::ShiftModifier);
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(text(), before);
}

TEST_F(TreePictures, OfTheMenu)
{
    for (QAction* each : window.menuBar()->actions()) {
        if (each->text().remove('&') != "Node")
            continue;
        each->menu()->ensurePolished();
        each->menu()->resize(each->menu()->sizeHint());
        keep("tree-menu", *each->menu());
    }
}

TEST_F(TreePictures, OfItsColumns)
{
    unfold();
    for (int column = 0; column < SceneTreeModel::ColumnCount; ++column)
        tree.setColumnShown(column, true);
    for (auto* dock : window.findChildren<QDockWidget*>()) {
        if (dock->objectName() == "sceneDock")
            window.resizeDocks({dock}, {620}, Qt::Horizontal);
    }
    keep("tree-columns", panel()); // asks for the figures
    ASSERT_TRUE(waitFor([this] { return !tree.getModel().getFigures().isCounting(); }));
    settle();
    keep("tree-columns", panel());
}

} // namespace
