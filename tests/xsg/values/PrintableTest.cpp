// SPDX-License-Identifier: MIT
#include <xsg/values/Printable.h>

#include <gtest/gtest.h>

using xsg::printable;
using namespace std::string_view_literals;

TEST(Printable, LeavesTextAsItIs)
{
    const auto text = "Caf\xC3\xA9 \xE2\x80\x9C\xE6\x97\xA5\xE2\x80\x9D \xF0\x9F\x98\x80 C:\\a"sv;
    EXPECT_EQ(printable(text), text);
    EXPECT_EQ(printable(""), "");
}

TEST(Printable, ShowsWhatControlsATerminal)
{
    EXPECT_EQ(printable("a\x1B[2J\0b\x7F"sv), "a\\x1B[2J\\x00b\\x7F");
    EXPECT_EQ(printable("two\nlines\ttab\r"), "two\\x0Alines\\x09tab\\x0D");
    EXPECT_EQ(printable("\xC2\x9B"
                        "31m"),
              "\\x9B31m")
        << "the control sequence introducer of 8 bits";
}

TEST(Printable, ShowsWhatChangesOtherCharacters)
{
    EXPECT_EQ(printable("a\xE2\x80\xAEgpj.exe"), "a\\u202Egpj.exe");
    EXPECT_EQ(printable("\xEF\xBB\xBFx\xE2\x80\xA8y"), "\\uFEFFx\\u2028y");
}

TEST(Printable, ShowsBytesThatAreNoText)
{
    EXPECT_EQ(printable("caf\xE9 \xC3( \xED\xA0\x80"), "caf\\xE9 \\xC3( \\xED\\xA0\\x80");
}

TEST(Printable, LeavesOutTheMiddleOfALongText)
{
    std::string text = "begin ";
    while (text.size() < 20000)
        text += "\xC3\xA9\x1B";
    const std::string shown = printable(text + " end");
    EXPECT_LT(shown.size(), 8000U);
    EXPECT_EQ(shown.rfind("begin ", 0), 0U);
    EXPECT_EQ(shown.substr(shown.size() - 4), " end");
    EXPECT_NE(shown.find(" \xE2\x80\xA6 "), std::string::npos);
    EXPECT_EQ(shown.find("\\xC3"), std::string::npos) << "no character is cut";
    EXPECT_EQ(printable(std::string(10000, '\x80')).find("\x80\x80"), std::string::npos);
}
