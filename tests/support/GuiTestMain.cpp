// SPDX-License-Identifier: MIT
// main() of the tests that need a QApplication.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    // Listing the tests needs no display, and has nothing to clean up.
    if (::testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
