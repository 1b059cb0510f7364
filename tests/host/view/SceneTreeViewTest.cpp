// SPDX-License-Identifier: MIT
#include "panels/SceneTreeView.h"
#include "panels/SceneTreeModel.h"
#include "support/SharedLevels.h"
#include "xsg/errors/Collected.h"

#include <xsg/errors/SoError.h>

using namespace scopix;

namespace
{

class SceneTreeKeys : public testing::Test
{
protected:
    // The rows that are unfolded, from the first one on.
    int countRows() const
    {
        int rows = 0;
        for (QModelIndex at = view.getModel().index(0, 0); at.isValid(); at = view.indexBelow(at))
            ++rows;
        return rows;
    }
    void unfold(SoNode* root)
    {
        view.setScene(root);
        view.setCurrentIndex(view.getModel().index(0, 0));
        QTest::keyClick(&view, Qt::Key_Asterisk);
    }

    SceneTreeView view;
    Collected<SoError> said;
};

TEST_F(SceneTreeKeys, AsteriskUnfoldsEverything)
{
    unfold(makeSharedLevels(5, false).get());
    EXPECT_EQ(countRows(), 1 + 63 + 32);
    EXPECT_TRUE(said.texts.empty());
}

TEST_F(SceneTreeKeys, AsteriskUnfoldsNoMillionsOfRows)
{
    unfold(makeSharedLevels(22, false).get());
    EXPECT_GT(countRows(), 1000);
    EXPECT_LE(countRows(), 50001);
    ASSERT_EQ(said.texts.size(), 1U);
    EXPECT_NE(said.texts.front().find("by 15 levels only"), std::string::npos) << said.texts.front();
}

} // namespace
