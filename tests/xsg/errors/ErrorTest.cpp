// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoErrorStack.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>

#include "Collected.h"

#include <atomic>
#include <thread>

namespace
{

void ignore(const SoError*, void*) {}

template <class Error>
class EveryError : public testing::Test
{
};
using AllErrors = testing::Types<SoError, SoDebugError, SoReadError, SoMemoryError, SoGLError, SoErrorStack>;
TYPED_TEST_SUITE(EveryError, AllErrors);

template <class Error>
void postOne()
{
    if constexpr (std::is_same_v<Error, SoError>) {
        SoError::post("wrong");
    } else if constexpr (std::is_same_v<Error, SoDebugError>) {
        SoDebugError::post("there", "wrong");
    } else if constexpr (std::is_same_v<Error, SoReadError>) {
        SoReadError::post("a.xsg", 3, "wrong");
    } else if constexpr (std::is_same_v<Error, SoMemoryError>) {
        SoMemoryError::post("wrong", 8);
    } else if constexpr (std::is_same_v<Error, SoGLError>) {
        SoGLError::post(0x0500, "wrong");
    } else {
        SoErrorStack::Builder errors;
        errors.add("wrong");
        errors.post();
    }
}

struct Seen {
    int calls = 0;
    SoType type;
    std::string text;
};

void note(const SoError* error, void* data)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->calls;
    seen->type = error->getTypeId();
    seen->text = error->getDebugString().str();
}

} // namespace

TYPED_TEST(EveryError, HasAHandlerOfItsOwn)
{
    const Collected<SoError> a;
    const Collected<SoDebugError> b;
    const Collected<SoReadError> c;
    const Collected<SoMemoryError> d;
    const Collected<SoGLError> e;
    const Collected<SoErrorStack> f;
    Seen seen;
    TypeParam::setHandlerCallback(note, &seen);
    EXPECT_EQ(TypeParam::getHandlerCallback(), note);
    EXPECT_EQ(TypeParam::getHandlerData(), &seen);
    postOne<TypeParam>();
    EXPECT_EQ(seen.calls, 1);
    EXPECT_EQ(seen.type, TypeParam::getClassTypeId());
    EXPECT_TRUE(seen.type.isDerivedFrom(SoError::getClassTypeId()));
    EXPECT_NE(seen.text.find("wrong"), std::string::npos);
    EXPECT_EQ(a.texts.size() + b.texts.size() + c.texts.size() + d.texts.size() + e.texts.size() +
                  f.texts.size(),
              0U);
}

TYPED_TEST(EveryError, StartsWithTheHandlerThatWritesToStandardError)
{
    EXPECT_EQ(TypeParam::getHandlerCallback(), SoError::defaultHandler);
    testing::internal::CaptureStderr();
    postOne<TypeParam>();
    const std::string written = testing::internal::GetCapturedStderr();
    EXPECT_NE(written.find("wrong"), std::string::npos);
    EXPECT_EQ(written.back(), '\n');
}

TYPED_TEST(EveryError, IsDroppedByANullCallback)
{
    const Collected<TypeParam> keeper;
    TypeParam::setHandlerCallback(nullptr, nullptr);
    testing::internal::CaptureStderr();
    postOne<TypeParam>();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TYPED_TEST(EveryError, PostedByEightThreadsAtOnceArrivesEachTime)
{
    const Collected<TypeParam> keeper;
    constexpr int Threads = 8;
    constexpr int Posts = 500;
    std::atomic<int> arrived{0};
    TypeParam::setHandlerCallback(
        [](const SoError* error, void* data) {
            if (error->getDebugString().str().find("wrong") != std::string::npos)
                ++*static_cast<std::atomic<int>*>(data);
        },
        &arrived);
    std::vector<std::thread> threads;
    for (int i = 0; i < Threads; ++i) {
        threads.emplace_back([] {
            for (int post = 0; post < Posts; ++post)
                postOne<TypeParam>();
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(arrived, Threads * Posts);
}

TEST(DebugError, HasItsSeverity)
{
    const Collected<SoDebugError> keeper;
    std::vector<int> severities;
    SoDebugError::setHandlerCallback(
        [](const SoError* error, void* data) {
            ASSERT_TRUE(error->isOfType(SoDebugError::getClassTypeId()));
            static_cast<std::vector<int>*>(data)->push_back(
                dynamic_cast<const SoDebugError*>(error)->getSeverity());
        },
        &severities);
    SoDebugError::post("here", "an error");
    SoDebugError::postWarning("here", "a warning");
    SoDebugError::postInfo("here", "some information");
    EXPECT_EQ(severities, (std::vector<int>{0, 1, 2}));
}

TEST(ReadError, NamesTheFileTheLineAndTheColumn)
{
    const Collected<SoReadError> read;
    SoReadError::post("scene.xsg", 12, 4, "Expected a '}'.");
    SoReadError::post("scene.xsg", 12, "Expected a '}'.");
    SoReadError::post("scene.xsg", 0, "The file is empty.");
    EXPECT_EQ(read.texts,
              (std::vector<std::string>{"scene.xsg:12: Column 4: Expected a '}'.",
                                        "scene.xsg:12: Expected a '}'.", "scene.xsg: The file is empty."}));
    SoReadError::setHandlerCallback(
        [](const SoError* error, void*) {
            const auto& known = dynamic_cast<const SoReadError&>(*error);
            EXPECT_EQ(known.getFileName(), SbString("scene.xsg"));
            EXPECT_EQ(known.getLine(), 12);
            EXPECT_EQ(known.getColumn(), 4);
        },
        nullptr);
    SoReadError::post("scene.xsg", 12, 4, "Expected a '}'.");
}

TEST(GLError, NamesItsCode)
{
    EXPECT_EQ(SoGLError::getCodeName(0x0505), SbString("GL_OUT_OF_MEMORY"));
    EXPECT_EQ(SoGLError::getCodeName(0x9999), SbString("0x9999"));
    EXPECT_EQ(SoGLError::getCodeName(0), SbString("0x0"));
}

TEST(ErrorStack, PostsItsSentencesTogetherAndOnlyOnce)
{
    const Collected<SoErrorStack> read;
    SoErrorStack::Builder errors;
    errors.post();
    EXPECT_TRUE(read.texts.empty());
    errors.add("cause");
    errors.add("effect");
    errors.post();
    errors.post();
    EXPECT_EQ(read.texts, std::vector<std::string>{"cause\neffect"});
}

TEST(ErrorHandler, IsReplacedFromInsideItsOwnCallback)
{
    const Collected<SoError> keeper;
    SoError::setHandlerCallback([](const SoError*, void*) { SoError::setHandlerCallback(ignore, nullptr); },
                                nullptr);
    SoError::post("once");
    EXPECT_EQ(SoError::getHandlerCallback(), ignore);
}

TEST(ErrorHandler, EndsACallbackThatAnswersErrorsWithErrors)
{
    const Collected<SoError> keeper;
    int calls = 0;
    SoError::setHandlerCallback(
        [](const SoError*, void* data) {
            ++*static_cast<int*>(data);
            SoError::post("again");
        },
        &calls);
    SoError::post("first");
    EXPECT_GT(calls, 1);
    EXPECT_LT(calls, 1000);
}

TEST(ErrorHandler, SetWaitsForTheOldCallback)
{
    const Collected<SoError> keeper;
    struct Shared {
        std::atomic<bool> entered{false};
        std::atomic<bool> mayLeave{false};
        std::atomic<bool> left{false};
        std::atomic<bool> replaced{false};
    } shared;
    SoError::setHandlerCallback(
        [](const SoError*, void* data) {
            auto* s = static_cast<Shared*>(data);
            s->entered = true;
            while (!s->mayLeave)
                std::this_thread::yield();
            s->left = true;
        },
        &shared);
    std::thread poster([] { SoError::post("slow"); });
    while (!shared.entered)
        std::this_thread::yield();
    std::thread replacer([&] {
        SoError::setHandlerCallback(ignore, nullptr);
        shared.replaced = true;
        EXPECT_TRUE(shared.left);
    });
    // The new callback is there while the old one still runs, and set has not returned.
    while (SoError::getHandlerCallback() != ignore)
        std::this_thread::yield();
    EXPECT_FALSE(shared.replaced);
    shared.mayLeave = true;
    replacer.join();
    poster.join();
}

TEST(ErrorHandler, ACallbacksDataMayBeDestroyedOnceItIsReplaced)
{
    const Collected<SoError> keeper;
    SoError::setHandlerCallback(nullptr, nullptr);
    constexpr int Threads = 8;
    std::atomic<bool> stop{false};
    std::atomic<std::int64_t> handled{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < Threads; ++i) {
        threads.emplace_back([&] {
            while (!stop) {
                SoError::post("from a thread");
                SoDebugError::getHandlerData();
                ++handled;
            }
        });
    }
    for (int round = 0; round < 300; ++round) {
        auto texts = std::make_unique<std::atomic<std::size_t>>(0);
        SoError::setHandlerCallback(
            [](const SoError* error, void* data) {
                *static_cast<std::atomic<std::size_t>*>(data) += error->getDebugString().str().size();
            },
            texts.get());
        SoError::setHandlerCallback(nullptr, nullptr);
        // Freed here: a callback that still ran would write into it.
    }
    while (handled < Threads)
        std::this_thread::yield();
    stop = true;
    for (std::thread& thread : threads)
        thread.join();
}

TEST(ReadError, IsOneHarmlessLineWhateverTheFileHas)
{
    Collected<SoReadError> errors;
    SoReadError::post(SbString("a\x1B[31m\nb.xsg"), 2, 3, SbString(std::string("\"\0\x07\" was read.", 14)));
    ASSERT_EQ(errors.texts.size(), 1U);
    EXPECT_EQ(errors.texts[0], "a\\x1B[31m\\x0Ab.xsg:2: Column 3: \"\\x00\\x07\" was read.");
}
