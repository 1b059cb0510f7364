// SPDX-License-Identifier: MIT
// What programs say is known again by its words, whatever library they were built with.
#include <scopix/live/client/SentenceOfProgram.h>

#include <gtest/gtest.h>

#include <set>

using namespace scopix::live;

namespace
{

const std::vector<std::string> Tricky = {"a", "“b” cannot be set: c", "100 %1 of 2.", "", "d”."};

std::set<std::string> known()
{
    std::set<std::string> all;
    for (const char* const* each = SentencesOfPrograms; *each; ++each)
        all.insert(*each);
    return all;
}

} // namespace

TEST(SentencesOfPrograms, AreKnownWithWhatStandsInThem)
{
    ASSERT_GT(known().size(), 60U);
    for (const char* const* each = SentencesOfPrograms; *each; ++each) {
        const std::string source = *each;
        const Sentence said = Sentence::known(*each, {"first", "2", "third"});
        const Sentence again = sentenceOfProgram(said.text());
        ASSERT_TRUE(again.source()) << source;
        EXPECT_EQ(again.source(), source);
        EXPECT_EQ(again.text(), said.text());
        for (std::size_t i = 0; i < again.arguments().size(); ++i)
            EXPECT_EQ(again.arguments()[i], said.arguments()[i]) << source;
    }
}

TEST(SentencesOfPrograms, TakeAnythingForAName)
{
    for (const std::string& name : Tricky) {
        const Sentence said("“%1” cannot be set: the value is of another type.", {name});
        const Sentence again = sentenceOfProgram(said.text());
        ASSERT_TRUE(again.source()) << name;
        EXPECT_STREQ(again.source(), said.source());
        EXPECT_EQ(again.arguments(), said.arguments());
    }
}

TEST(SentencesOfPrograms, OfTwoThatFitAreTheOneThatSaysMore)
{
    EXPECT_STREQ(sentenceOfProgram("The program could not do it: the answer is too long.").source(),
                 "The program could not do it: the answer is too long.");
    EXPECT_STREQ(sentenceOfProgram("The program could not do it: disk full.").source(),
                 "The program could not do it: %1.");
}

TEST(SentencesOfPrograms, OfAProgramsOwnAdapterStayAsTheyCame)
{
    for (const char* words : {"It is not to its liking.", "", "%1", "“", "“radius” cannot be set",
                              "The text is damaged. And more.", "The program could not do it: "}) {
        const Sentence sentence = sentenceOfProgram(words);
        EXPECT_FALSE(sentence.source()) << words;
        EXPECT_EQ(sentence.text(), words);
    }
}
