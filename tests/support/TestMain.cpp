// SPDX-License-Identifier: MIT
// main() of the tests that need no window.
#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv)
{
    // As an application with windows does; under a decimal-comma locale, a stray printf shows up.
    std::setlocale(LC_ALL, "");
    if (ChildAct::isAsked(argc, argv))
        return ChildAct::perform(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
