// SPDX-License-Identifier: MIT
// What holds for every field type, walked by the table of samples.
#include <gtest/gtest.h>

#include <xsg/sensors/SoFieldSensor.h>
#include <xsg/sensors/SoSensorQueue.h>

#include "EveryField.h"

#include <set>

TEST(FieldTypes, EveryTypeHasASample)
{
    std::set<std::string> sampled;
    for (const FieldSample& sample : fieldSamples())
        sampled.insert(sample.type);
    std::set<std::string> creatable;
    for (const SoType type : SoType::getAllDerivedFrom(SoField::getClassTypeId())) {
        if (type.canCreateInstance())
            creatable.insert(type.getName().getString());
    }
    EXPECT_EQ(sampled, creatable);
    EXPECT_GE(sampled.size(), 57U);
}

TEST_F(EveryField, WritesWhatItRead)
{
    forEach([this] {
        for (const std::string& text : sample().goodTexts()) {
            const auto field = sample().create();
            ASSERT_TRUE(field->set(text)) << text;
            EXPECT_EQ(textOf(*field), text);
            const auto again = sample().create();
            ASSERT_TRUE(again->set(textOf(*field)));
            EXPECT_TRUE(again->isSame(*field)) << text;
            EXPECT_TRUE(field->isSame(*again)) << text;
        }
    });
}

TEST_F(EveryField, ToleratesBlanksAroundItsText)
{
    forEach([this] {
        for (const std::string& text : sample().goodTexts()) {
            const auto field = sample().create();
            ASSERT_TRUE(field->set(" \t\r\n" + text + "  \n")) << text;
            EXPECT_EQ(textOf(*field), text);
        }
    });
}

TEST_F(EveryField, RefusesMalformedTextAndKeepsItsValue)
{
    forEach([this] {
        const auto field = sample().create();
        ASSERT_TRUE(field->set(sample().goodTexts().back()));
        const std::string before = textOf(*field);
        const int changes = changesOf(*field);
        const auto bad = sample().badTexts();
        EXPECT_GE(bad.size(), 20U);
        for (const std::string& text : bad) {
            EXPECT_FALSE(field->set(text)) << text;
            ASSERT_EQ(textOf(*field), before) << text;
        }
        EXPECT_EQ(changesOf(*field), changes);
    });
}

// A comma parts the values of a list; between the numbers of one value it could as well be a decimal comma.
TEST_F(EveryField, CommasDoNotSeparateTheNumbersOfAValue)
{
    forEach([this] {
        if (sample().numbers < 2)
            return;
        std::string text = "1";
        for (int i = 1; i < sample().numbers; ++i)
            text += ",1";
        const auto field = sample().create();
        const std::string before = textOf(*field);
        for (const std::string& commas : {text, "[ " + text + " ]"})
            EXPECT_FALSE(field->set(commas)) << commas;
        EXPECT_EQ(textOf(*field), before);
    });
}

TEST_F(EveryField, RefusedTextLeavesTheDefaultFlag)
{
    forEach([this] {
        const auto field = sample().create();
        EXPECT_TRUE(field->isDefault());
        for (const std::string& text : sample().badTexts())
            EXPECT_FALSE(field->set(text)) << text;
        EXPECT_TRUE(field->isDefault());
    });
}

TEST_F(EveryField, NeverHasAnEmptyText)
{
    forEach([this] {
        EXPECT_NE(textOf(*sample().create()), "");
        const auto field = sample().create();
        EXPECT_TRUE(field->set(textOf(*field)));
    });
}

TEST_F(EveryField, IsDefaultUntilItIsWritten)
{
    forEach([this] {
        const auto field = sample().create();
        EXPECT_TRUE(field->isDefault());
        field->set(textOf(*field));
        EXPECT_FALSE(field->isDefault());
        field->setDefault(true);
        EXPECT_TRUE(field->isDefault());
    });
}

TEST_F(EveryField, NotifiesOfAWriteOfTheSameValue)
{
    forEach([this] {
        const auto field = sample().create();
        field->set(sample().goodTexts().front());
        const int changes = changesOf(*field);
        field->set(sample().goodTexts().front());
        EXPECT_EQ(changesOf(*field), changes + 1);
    });
}

TEST_F(EveryField, TheIgnoreFlagNotifiesAndKeepsTheValue)
{
    forEach([this] {
        const auto field = sample().create();
        const std::string before = textOf(*field);
        EXPECT_FALSE(field->isIgnored());
        const int changes = changesOf(*field);
        field->setIgnored(true);
        EXPECT_TRUE(field->isIgnored());
        EXPECT_EQ(changesOf(*field), changes + 1);
        EXPECT_EQ(textOf(*field), before);
        EXPECT_TRUE(field->isDefault());
    });
}

TEST_F(EveryField, DifferentValuesAreNotTheSame)
{
    forEach([this] {
        const auto texts = sample().goodTexts();
        for (std::size_t i = 1; i < texts.size(); ++i) {
            const auto a = sample().create();
            const auto b = sample().create();
            a->set(texts[i - 1]);
            b->set(texts[i]);
            EXPECT_FALSE(a->isSame(*b)) << texts[i - 1] << " and " << texts[i];
        }
        const auto field = sample().create();
        for (const char* type : {"SFFloat", "MFString"}) {
            if (sample().type != type) {
                EXPECT_FALSE(field->isSame(*sampleOf(type).create()));
            }
        }
    });
}

TEST_F(EveryField, FollowsAnotherOfItsTypeLazily)
{
    forEach([this] {
        const auto master = sample().create();
        const auto follower = sample().create();
        ASSERT_TRUE(follower->connectFrom(master.get()));
        EXPECT_EQ(follower->getConnectedField(), master.get());
        for (const std::string& text : sample().goodTexts()) {
            ASSERT_TRUE(master->set(text));
            EXPECT_TRUE(follower->needsEvaluation());
            EXPECT_EQ(textOf(*follower), text);
            EXPECT_FALSE(follower->needsEvaluation());
            EXPECT_TRUE(follower->isSame(*master));
        }
        EXPECT_FALSE(follower->isDefault());
        follower->disconnect();
        EXPECT_FALSE(follower->isConnected());
        master->set(sample().goodTexts().front());
        EXPECT_EQ(textOf(*follower), sample().goodTexts().back());
    });
}

TEST_F(EveryField, TakesTheLastValueWhenItIsDisconnected)
{
    forEach([this] {
        const auto master = sample().create();
        const auto follower = sample().create();
        follower->connectFrom(master.get());
        master->set(sample().goodTexts().back());
        follower->disconnect();
        EXPECT_EQ(textOf(*follower), sample().goodTexts().back());
    });
}

TEST_F(EveryField, ADirectWriteStandsUntilTheMasterChanges)
{
    forEach([this] {
        const auto master = sample().create();
        const auto follower = sample().create();
        master->set(sample().goodTexts().back());
        follower->connectFrom(master.get());
        ASSERT_TRUE(follower->set(sample().goodTexts().front()));
        EXPECT_EQ(textOf(*follower), sample().goodTexts().front());
        master->setIgnored(true); // no change of the value
        EXPECT_EQ(textOf(*follower), sample().goodTexts().front());
        master->touch();
        EXPECT_EQ(textOf(*follower), sample().goodTexts().back());
    });
}

TEST_F(EveryField, RefusesToFollowItself)
{
    forEach([this] {
        const auto a = sample().create();
        const auto b = sample().create();
        const auto c = sample().create();
        EXPECT_FALSE(a->connectFrom(a.get()));
        EXPECT_TRUE(b->connectFrom(a.get()));
        EXPECT_TRUE(c->connectFrom(b.get()));
        EXPECT_FALSE(a->connectFrom(c.get()));
        EXPECT_FALSE(a->isConnected());
        EXPECT_FALSE(a->connectFrom(nullptr));
    });
}

TEST_F(EveryField, OutlivesTheFieldItFollows)
{
    forEach([this] {
        auto master = sample().create();
        const auto follower = sample().create();
        master->set(sample().goodTexts().back());
        follower->connectFrom(master.get());
        EXPECT_EQ(textOf(*follower), sample().goodTexts().back());
        master.reset();
        EXPECT_FALSE(follower->isConnected());
        EXPECT_EQ(textOf(*follower), sample().goodTexts().back());
        EXPECT_TRUE(follower->set(sample().goodTexts().front()));
    });
}

TEST_F(EveryField, NotifiesItsSensorOncePerTurn)
{
    forEach([this] {
        const auto field = sample().create();
        int calls = 0;
        SoFieldSensor sensor([](void* data, SoSensor*) { ++*static_cast<int*>(data); }, &calls);
        sensor.attach(field.get());
        for (const std::string& text : sample().goodTexts())
            field->set(text);
        EXPECT_EQ(calls, 0);
        SoSensorQueue::getInstance().process();
        EXPECT_EQ(calls, 1);
        field->set(sample().badTexts().front());
        SoSensorQueue::getInstance().process();
        EXPECT_EQ(calls, 1);
    });
}

TEST_F(EveryField, ConvertsToTextAndBack)
{
    forEach([this] {
        // A list of strings has no single text: its first stands for it.
        if (sample().type == "MFString" || sample().type == "MFName")
            return;
        const auto text = sampleOf("SFString").create();
        for (const std::string& good : sample().goodTexts()) {
            const auto field = sample().create();
            const auto back = sample().create();
            field->set(good);
            ASSERT_TRUE(text->copyFrom(*field));
            ASSERT_TRUE(back->copyFrom(*text)) << good;
            EXPECT_TRUE(back->isSame(*field)) << good;
        }
    });
}
