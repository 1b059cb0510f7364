// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/errors/SoDebugError.h>

#include "xsg/errors/Collected.h"

#include <cmath>
#include <thread>

namespace
{

SoPerfCounterManager& manager()
{
    return *SoPerfCounterManager::getInstance();
}

// Registers counters of a test's own and takes them out again.
class Counters : public testing::Test
{
protected:
    ~Counters() override
    {
        manager().setInterval(0.0);
        for (const SbName name : names)
            manager().disableCounter(name);
        manager().removeDisabledCounters();
    }
    template <class Counter = SoPerfAccumCounter>
    Counter* add(const char* name, bool custom = false)
    {
        auto* counter = new Counter(name, "", "Test", 0, custom);
        EXPECT_TRUE(manager().registerCounter(counter));
        names.push_back(name);
        return counter;
    }
    template <class Counter = SoPerfAccumCounter>
    SoPerfCounter* addCustom(const char* name, const char* first, const char* operation, const char* second)
    {
        SoPerfCounter* counter = add<Counter>(name, true);
        counter->setFirstParent(first);
        counter->setSecondParent(second);
        counter->setOperation(operation);
        return counter;
    }
    std::vector<SbName> names;
};

} // namespace

TEST_F(Counters, HaveTheirDescriptions)
{
    const SoPerfAccumCounter accum("Made", "Things made.", "Works", SoPerfCounter::HIGH, true);
    EXPECT_EQ(accum.getName(), SbName("Made"));
    EXPECT_EQ(accum.getDescription(), SbString("Things made."));
    EXPECT_EQ(accum.getModule(), SbString("Works"));
    EXPECT_EQ(accum.getLevel(), SoPerfCounter::HIGH);
    EXPECT_EQ(accum.getStringLevel(), SbString("High"));
    EXPECT_EQ(accum.getTypeCode(), SbString("A"));
    EXPECT_EQ(accum.getTypeText(), SbString("Accumulation"));
    EXPECT_TRUE(accum.isCustom());
    EXPECT_TRUE(accum.isEnabled());
    const SoPerfStateCounter state("Held", "", "", 1);
    EXPECT_EQ(state.getStringLevel(), SbString("Medium"));
    EXPECT_EQ(state.getTypeCode(), SbString("S"));
    EXPECT_EQ(state.getTypeText(), SbString("State"));
    EXPECT_FALSE(state.isCustom());
    EXPECT_EQ(SoPerfStateCounter("Low", "", "", -5).getStringLevel(), SbString("Low"));
    EXPECT_EQ(SoPerfStateCounter("High", "", "", 99).getStringLevel(), SbString("High"));
}

TEST_F(Counters, AResetEmptiesAnAccumulationAndLeavesAState)
{
    auto* accum = add("accum");
    auto* state = add<SoPerfStateCounter>("state");
    accum->increment(3);
    accum->increment();
    state->setState(10);
    state->addToState(-3);
    EXPECT_EQ(accum->getValue(), 4);
    EXPECT_EQ(state->getValue(), 7);
    accum->reset();
    state->reset();
    EXPECT_EQ(accum->getValue(), 0);
    EXPECT_EQ(state->getValue(), 7);
    accum->increment(2);
    EXPECT_EQ(accum->getValue(), 2);
}

TEST_F(Counters, TheValueIsTheRawValueDividedByTheScale)
{
    auto* counter = add("scaled");
    counter->increment(10);
    counter->setScaleFactor(4);
    EXPECT_EQ(counter->getScaleFactor(), 4);
    EXPECT_EQ(counter->getValue(), 2.5);
    EXPECT_EQ(counter->getRawValue(), 10);
    for (const double bad : {0.0, -1.0, std::nan(""), HUGE_VAL}) {
        counter->setScaleFactor(bad);
        EXPECT_EQ(counter->getScaleFactor(), 4);
    }
}

TEST_F(Counters, ATakenNameIsRefusedAndTheCounterStaysWithTheCaller)
{
    auto* first = add("taken");
    const auto second = std::make_unique<SoPerfStateCounter>("taken", "", "", 0);
    EXPECT_FALSE(manager().registerCounter(second.get()));
    EXPECT_EQ(manager().getCounter("taken"), first);
    EXPECT_FALSE(manager().registerCounter(nullptr));
    const auto unnamed = std::make_unique<SoPerfStateCounter>("", "", "", 0);
    EXPECT_FALSE(manager().registerCounter(unnamed.get()));
    EXPECT_FALSE(manager().registerCounter(first));
    EXPECT_EQ(manager().getCounter("absent"), nullptr);
}

TEST_F(Counters, TheListKeepsTheOrderOfRegistration)
{
    auto* b = add("order b");
    auto* a = add("order a");
    const auto all = manager().getCounters();
    ASSERT_GE(all.size(), 2U);
    EXPECT_EQ(all[all.size() - 2], b);
    EXPECT_EQ(all.back(), a);
}

TEST_F(Counters, DisabledOnesStayUntilTheyAreRemoved)
{
    auto* counter = add("leaving");
    auto* child = addCustom("child", "leaving", "+", "leaving");
    counter->increment(2);
    EXPECT_EQ(child->getValue(), 4);
    manager().disableCounter("leaving");
    EXPECT_FALSE(counter->isEnabled());
    EXPECT_EQ(manager().getCounter("leaving"), counter);
    manager().enableCounter("leaving");
    manager().removeDisabledCounters();
    EXPECT_EQ(manager().getCounter("leaving"), counter);
    manager().disableCounter("leaving");
    manager().removeDisabledCounters();
    EXPECT_EQ(manager().getCounter("leaving"), nullptr);
    EXPECT_EQ(child->getValue(), 0);
    counter->increment(); // whoever still feeds it writes into memory that is there
    auto* again = add("leaving");
    again->increment(5);
    EXPECT_EQ(child->getValue(), 10);
}

TEST_F(Counters, CustomOnesComputeFromTheRawValuesOfTwoOthers)
{
    auto* a = add("a");
    auto* b = add<SoPerfStateCounter>("b");
    a->increment(12);
    b->setState(4);
    a->setScaleFactor(100);
    b->setScaleFactor(7);
    EXPECT_EQ(addCustom("sum", "a", "+", "b")->getValue(), 16);
    EXPECT_EQ(addCustom("difference", "a", "-", "b")->getValue(), 8);
    EXPECT_EQ(addCustom("product", "a", "*", "b")->getValue(), 48);
    EXPECT_EQ(addCustom("quotient", "a", "/", "b")->getValue(), 3);
    EXPECT_EQ(addCustom("unknown operation", "a", "%", "b")->getValue(), 0);
    EXPECT_EQ(addCustom("no operation", "a", "", "b")->getValue(), 0);
    SoPerfCounter* nested = addCustom("nested", "sum", "*", "quotient");
    EXPECT_EQ(nested->getValue(), 48);
    nested->setScaleFactor(2);
    EXPECT_EQ(nested->getValue(), 24);
    nested->reset(); // and with it what it is computed from
    EXPECT_EQ(nested->getValue(), 0);
    EXPECT_EQ(a->getValue(), 0);
    EXPECT_EQ(b->getRawValue(), 4) << "a state stays";
    b->setState(0);
    EXPECT_EQ(manager().getCounter("quotient")->getValue(), 0);
}

TEST_F(Counters, AResetReachesTheLeavesOfCustomOnes)
{
    auto* a = add("a");
    auto* b = add("b");
    addCustom("inner", "a", "+", "b");
    addCustom<SoPerfStateCounter>("middle", "inner", "+", "missing");
    SoPerfCounter* outer = addCustom("outer", "middle", "+", "inner");
    for (SoPerfCounter* counter : {outer, manager().getCounter("middle"), manager().getCounter("inner")}) {
        for (int round = 0; round < 3; ++round) {
            a->increment(3);
            b->increment(7);
            EXPECT_EQ(manager().getCounter("inner")->getValue(), 10) << counter->getName().getString();
            counter->reset();
            EXPECT_EQ(a->getValue() + b->getValue(), 0) << counter->getName().getString();
        }
    }
}

TEST_F(Counters, AResetForgetsWhatWasReadWithinTheInterval)
{
    auto* a = add("a");
    addCustom("inner", "a", "+", "missing");
    SoPerfCounter* outer = addCustom("outer", "inner", "+", "missing");
    manager().setInterval(3600.0);
    a->increment(5);
    EXPECT_EQ(outer->getValue() + manager().getCounter("inner")->getValue(), 10);
    outer->reset();
    EXPECT_EQ(outer->getValue() + manager().getCounter("inner")->getValue(), 0);
}

TEST_F(Counters, AMissingParentCountsAsZero)
{
    auto* a = add("a");
    a->increment(5);
    SoPerfCounter* half = addCustom("half", "a", "+", "not yet");
    EXPECT_EQ(half->getValue(), 5);
    add("not yet")->increment(6);
    EXPECT_EQ(half->getValue(), 11);
    EXPECT_EQ(half->getSecondParent(), SbName("not yet"));
    EXPECT_EQ(half->getOperation(), SbString("+"));
}

TEST_F(Counters, ParentsMayBeNamedBeforeRegistering)
{
    add("a")->increment(3);
    auto* twice = new SoPerfAccumCounter("twice", "", "", 0, true);
    twice->setFirstParent("a");
    twice->setSecondParent("a");
    twice->setOperation("+");
    ASSERT_TRUE(manager().registerCounter(twice));
    names.push_back("twice");
    EXPECT_EQ(twice->getValue(), 6);
}

TEST_F(Counters, ALoopIsRefusedWithAnError)
{
    const Collected<SoDebugError> errors;
    add("a")->increment(1);
    SoPerfCounter* first = addCustom("first", "a", "+", "a");
    SoPerfCounter* second = addCustom("second", "first", "+", "a");
    EXPECT_TRUE(errors.texts.empty());
    first->setSecondParent("second");
    EXPECT_EQ(first->getSecondParent(), SbName("a"));
    EXPECT_EQ(errors.texts.size(), 1U);
    second->setFirstParent("second");
    EXPECT_EQ(second->getFirstParent(), SbName("first"));
    EXPECT_EQ(errors.texts.size(), 2U);
    EXPECT_EQ(second->getValue(), 3);
}

TEST_F(Counters, ALoopThatRegisteringClosesIsReportedAndCutWhenRead)
{
    const Collected<SoDebugError> errors;
    add("a")->increment(1);
    SoPerfCounter* first = addCustom("first", "a", "+", "second");
    auto* second = new SoPerfAccumCounter("second", "", "", 0, true);
    second->setFirstParent("first");
    second->setSecondParent("a");
    second->setOperation("+");
    ASSERT_TRUE(manager().registerCounter(second));
    names.push_back("second");
    EXPECT_EQ(errors.texts.size(), 1U);
    EXPECT_EQ(first->getValue(), 2);  // a + (0 + a)
    EXPECT_EQ(second->getValue(), 2); // (a + 0) + a
    second->reset();
    EXPECT_EQ(second->getValue(), 0);
}

TEST_F(Counters, LongAndBranchingChainsAreComputedOnce)
{
    add("link 0")->increment(1);
    constexpr int Length = 20'000;
    for (int i = 1; i <= Length; ++i) {
        // Each uses the one before it twice: a recursion would take 2^Length steps and as deep a stack.
        const std::string name = "link " + std::to_string(i);
        const std::string before = "link " + std::to_string(i - 1);
        auto* link = new SoPerfAccumCounter(name.c_str(), "", "", 0, true);
        link->setFirstParent(before.c_str());
        link->setSecondParent(i % 2 ? before.c_str() : "link 0");
        link->setOperation(i % 2 ? "-" : "+");
        ASSERT_TRUE(manager().registerCounter(link));
        names.emplace_back(name.c_str());
    }
    EXPECT_EQ(manager().getCounter(names.back())->getValue(), 1);
    manager().getCounter(names.back())->reset();
    EXPECT_EQ(manager().getCounter("link 0")->getValue(), 0);
}

TEST_F(Counters, AnIntervalKeepsWhatWasRead)
{
    auto* counter = add("sampled");
    manager().setInterval(3600.0);
    EXPECT_EQ(manager().getInterval(), SbTime(3600.0));
    counter->increment(1);
    EXPECT_EQ(counter->getValue(), 1);
    counter->increment(1);
    EXPECT_EQ(counter->getValue(), 1);
    counter->reset();
    EXPECT_EQ(counter->getValue(), 0);
    counter->increment(1);
    manager().setInterval(0.0);
    EXPECT_EQ(counter->getValue(), 1);
    manager().setInterval(-1.0);
    EXPECT_EQ(manager().getInterval(), SbTime(0.0));
}

TEST_F(Counters, TheLibrarysOwnAreThereFromTheStart)
{
    for (const char* name : {"Frames", "RenderTime", "NodesTraversed", "DrawCalls", "Triangles", "Vertices",
                             "FieldChanges", "Notifications", "SensorsTriggered", "SensorQueueLength",
                             "NodesAlive", "FieldsAlive", "AllocatedBytes", "Allocations"}) {
        const SoPerfCounter* counter = manager().getCounter(name);
        ASSERT_TRUE(counter) << name;
        EXPECT_FALSE(counter->isCustom());
        EXPECT_NE(counter->getDescription(), SbString(""));
        EXPECT_NE(counter->getModule(), SbString(""));
    }
}

TEST_F(Counters, EightThreadsLoseNothing)
{
    constexpr int Threads = 8;
    constexpr int Rounds = 2000;
    auto* counter = add("hammered");
    auto* state = add<SoPerfStateCounter>("balance");
    SoPerfCounter* custom = addCustom("custom", "hammered", "+", "balance");
    std::vector<std::thread> threads;
    for (int t = 0; t < Threads; ++t) {
        threads.emplace_back([&, t] {
            const std::string own = "thread " + std::to_string(t);
            for (int i = 0; i < Rounds; ++i) {
                counter->increment();
                state->addToState(i % 2 ? -1 : 1);
                if (i % 100 != 0)
                    continue;
                custom->getValue();
                custom->setScaleFactor(1 + t);
                custom->setOperation(t % 2 ? "+" : "-");
                custom->setFirstParent(t % 2 ? "hammered" : own.c_str());
                auto* passing = new SoPerfStateCounter(own.c_str(), "", "", 0);
                if (!manager().registerCounter(passing))
                    delete passing;
                manager().disableCounter(own.c_str());
                manager().removeDisabledCounters();
                manager().getCounters();
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(counter->getRawValue(), Threads * Rounds);
    EXPECT_EQ(state->getRawValue(), 0);
}
