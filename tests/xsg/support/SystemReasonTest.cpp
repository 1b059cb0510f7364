// SPDX-License-Identifier: MIT
#include <xsg/support/SystemReason.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

// A library that has asked the system may tell them in English or in the language of the locale.
TEST(SystemReason, IsFoundByItsWords)
{
    for (const int code : {EACCES, ENOENT, ENOSPC, EFBIG, EMFILE}) {
        const SbSentence expected = xsg::systemReason(code);
        ASSERT_NE(expected.getSource(), nullptr);
        for (const char* words : {strerrordesc_np(code), static_cast<const char*>(std::strerror(code))})
            EXPECT_EQ(xsg::systemReasonOf(words).getSource(), expected.getSource()) << words;
    }
}

TEST(SystemReason, LeavesWordsOfOthersAsTheyAre)
{
    for (const char* words : {"", "Success", "Permission", "Unknown error"}) {
        EXPECT_EQ(xsg::systemReasonOf(words).getText(), words);
        EXPECT_EQ(xsg::systemReasonOf(words).getSource(), nullptr);
    }
}
