// SPDX-License-Identifier: MIT
#include "support/ProgressDialog.h"

#include <support/Waiting.h>

#include <gtest/gtest.h>

#include <QtWidgets>

using namespace scopix;

namespace
{

class Progress : public testing::Test
{
protected:
    Progress()
    {
        window.show();
        EXPECT_TRUE(waitForActive(&window));
    }

    QWidget window;
    ProgressDialog dialog{QStringLiteral("Reading <b>…"), QStringLiteral("progress"), window};
};

TEST_F(Progress, GivesTheKeysBackToItsWindow)
{
    dialog.show();
    ASSERT_TRUE(waitFor([this] { return QApplication::activeWindow() == &dialog; }));
    dialog.end();
    EXPECT_TRUE(waitFor([this] { return QApplication::activeWindow() == &window; }));
}

TEST_F(Progress, ShowsNamesAsTheyAre)
{
    EXPECT_EQ(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
}

} // namespace
