// SPDX-License-Identifier: MIT
// The plug-in in the real host, loaded after the default extensions as the program does it.
#include "plugins/Inspector/InspectorSession.h"

TEST(Inspector, ANodeOpensThePanelInTheNodeEditorDock)
{
    InspectorSession session;
    EXPECT_FALSE(session.panel());
    session.selectNode(session.material.get());
    ASSERT_TRUE(session.panel());
    EXPECT_EQ(session.panel()->objectName(), "inspectorPanel");
    session.selectNode(nullptr);
    EXPECT_FALSE(session.panel());
    EXPECT_EQ(session.stack().count(), 0);
}
