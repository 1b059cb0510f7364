// SPDX-License-Identifier: MIT
// Sentences and what stands in them.
#include <xsg/values/Printable.h>
#include <xsg/values/SbSentence.h>

#include <gtest/gtest.h>

namespace
{

std::string quoted(const std::string& text)
{
    return "<" + text + ">";
}

} // namespace

TEST(Sentence, IsItsTextWithWhatStandsInIt)
{
    const SbSentence sentence("“%2” has %1 of %2, 100 % of them %9.", 3, std::string_view("a%1b"));
    EXPECT_EQ(sentence.getText(), "“a%1b” has 3 of a%1b, 100 % of them %9.");
    EXPECT_STREQ(sentence.getSource(), "“%2” has %1 of %2, 100 % of them %9.");
    ASSERT_EQ(sentence.getArguments().size(), 2U);
    EXPECT_EQ(sentence.getArguments()[0].getText(), "3");
    EXPECT_EQ(sentence.getArguments()[1].getSource(), nullptr);
    EXPECT_EQ(SbSentence("It ends in %").getText(), "It ends in %");
}

TEST(Sentence, IsEmptyUntilSomethingIsSaid)
{
    SbSentence sentence;
    EXPECT_TRUE(sentence.empty());
    sentence = SbSentence("Something is wrong.");
    EXPECT_FALSE(sentence.empty());
    EXPECT_TRUE(sentence == "Something is wrong.");
    EXPECT_TRUE(sentence != "Nothing is wrong.");
}

TEST(Sentence, HoldsOtherSentences)
{
    const SbSentence sentence("%1: %2.", SbSentence::verbatim("lamp.xsg"), SbSentence("no %1", "node"));
    EXPECT_EQ(sentence.getText(), "lamp.xsg: no node.");
    EXPECT_STREQ(sentence.getArguments()[1].getSource(), "no %1");
    const SbSentence changed = sentence.withValues(quoted);
    EXPECT_EQ(changed.getText(), "<<lamp.xsg>: <no <node>>.>");
    EXPECT_EQ(changed.getArguments()[1].getArguments()[0].getText(), "<node>");
    EXPECT_STREQ(changed.getSource(), sentence.getSource());
}

TEST(Sentence, IsPrintableWhateverStandsInIt)
{
    const SbSentence sentence = xsg::printable(SbSentence("%1: %2.", "a\nb", std::string(5000, 'x')));
    EXPECT_EQ(sentence.getText(), xsg::printable(sentence.getText()));
    EXPECT_EQ(sentence.getText().find('\n'), std::string::npos);
    EXPECT_EQ(sentence.getArguments()[0].getText(), xsg::printable("a\nb"));
}
