// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>

// Without this, the whole run under a decimal comma could silently be one more run under the C locale.
TEST(Locale, IsTheOneThatTheRunAsksFor)
{
    const char* asked = std::getenv("LC_ALL");
    ASSERT_NE(asked, nullptr) << "run the tests through ctest";
    const std::string point = std::string(asked) == "C" ? "." : ",";
    EXPECT_EQ(std::localeconv()->decimal_point, point) << "under LC_ALL=" << asked;
}
