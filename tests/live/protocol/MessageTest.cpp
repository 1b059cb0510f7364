// SPDX-License-Identifier: MIT
// How messages are packed, and that no bytes do harm.
#include "fuzz/LiveMessageCheck.h"

#include <scopix/live/values/LivePacking.h>

#include <gtest/gtest.h>

#include <random>

using namespace scopix::live;

TEST(Messages, ComeThroughInPiecesOfAnySize)
{
    const PropertyInfo info{"size", ValueKind::Vec3f, true,         true,     Meaning::Enumeration,
                            0.5,    std::nullopt,     {{"one", 1}}, "a text", "m",
                            3};
    const Bytes bytes = packedMessage(MessageType::Properties, 7, std::vector<PropertyInfo>{info, info});
    for (std::size_t piece = 1; piece <= bytes.size(); ++piece) {
        MessageBuffer buffer;
        std::optional<Message> message;
        for (std::size_t place = 0; place < bytes.size(); place += piece) {
            EXPECT_FALSE(message);
            buffer.add(bytes.data() + place, std::min(piece, bytes.size() - place));
            message = buffer.take();
        }
        ASSERT_TRUE(message);
        EXPECT_EQ(message->id, 7U);
        const auto infos = contentsOf<std::vector<PropertyInfo>>(*message);
        ASSERT_TRUE(infos);
        ASSERT_EQ(infos->size(), 2U);
        EXPECT_EQ(infos->back().names.at(0).name, "one");
        EXPECT_EQ(infos->back().least, 0.5);
        EXPECT_FALSE(infos->back().greatest);
        EXPECT_EQ(infos->back().unit, "m");
    }
}

TEST(Messages, AreRefusedWhereverTheyAreCutOff)
{
    const Bytes bytes =
        packedMessage(MessageType::Write, 1, NodeId(3), Text("size"), packed(ValueKind::Double, 1.0));
    for (std::size_t size = 0; size < bytes.size() - HeadSize; ++size) {
        const auto start = bytes.begin() + HeadSize;
        const Message cut{0, 0, Bytes(start, start + static_cast<std::ptrdiff_t>(size))};
        EXPECT_FALSE(contentsOf<Parameters<MessageType::Write>>(cut)) << size;
    }
}

TEST(Values, AreWellFormedWhereTheirBytesAreWhatTheKindSays)
{
    EXPECT_TRUE(isWellFormed(packed(ValueKind::Vec3f, std::array<float, 3>{})));
    EXPECT_FALSE(isWellFormed(packed(ValueKind::Vec3f, std::array<float, 4>{})));
    EXPECT_TRUE(isWellFormed({ValueKind::Vec3f, true, {}}));
    EXPECT_FALSE(isWellFormed({ValueKind::Vec3f, false, {}}));
    EXPECT_FALSE(isWellFormed({ValueKind::Bool, false, {2}}));
    EXPECT_FALSE(isWellFormed({static_cast<ValueKind>(200), false, {}}));
    EXPECT_TRUE(isWellFormed(packedTexts({"a", "", "b"})));
    EXPECT_EQ(packedTexts({"a", "", "b"}).count(), 3U);
    EXPECT_EQ(unpackedTexts(packedTexts({"a", "", "b"})), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_FALSE(isWellFormed({ValueKind::String, false, {255, 255, 255, 255, 'a'}}));
    const std::vector<std::uint8_t> pixels(24);
    Value image = packedImage(4, 2, 3, pixels.data());
    EXPECT_TRUE(isWellFormed(image));
    image.bytes[3] = 0xFF; // the width: thousands of millions
    EXPECT_FALSE(isWellFormed(image));
    image.bytes[3] = 0;
    image.bytes.pop_back();
    EXPECT_FALSE(isWellFormed(image));
}

TEST(Fuzz, WhatWasFoundInMessagesStaysFound)
{
    const fuzz::LiveMessageCheck check;
    const auto inputs = fuzz::inputsOf(SCOPIX_SOURCE_DIR "/fuzz/corpus/live_message");
    EXPECT_FALSE(inputs.empty());
    for (const fuzz::Input& input : inputs)
        check(input.data(), input.size());
}

TEST(Fuzz, DamagedMessagesAreRefusedOrReadAsTheyAre)
{
    const fuzz::LiveMessageCheck check;
    std::mt19937 random(11);
    for (fuzz::Input input : fuzz::inputsOf(SCOPIX_SOURCE_DIR "/fuzz/corpus/live_message")) {
        for (int i = 0; i < 200; ++i) {
            fuzz::Input damaged = input;
            damaged[random() % damaged.size()] = static_cast<std::uint8_t>(random());
            check(damaged.data(), damaged.size());
        }
    }
}
