// SPDX-License-Identifier: MIT
// Replays the fuzzer's corpus, so that the sanitizers see it in every run.
#include <gtest/gtest.h>

#include "fuzz/CounterProfileCheck.h"

TEST(CounterProfileFuzz, TheCorpusHolds)
{
    fuzz::CounterProfileCheck check;
    const auto inputs = fuzz::inputsOf(SCOPIX_SOURCE_DIR "/fuzz/corpus/counter_profile");
    ASSERT_FALSE(inputs.empty());
    for (const fuzz::Input& input : inputs)
        check(input.data(), input.size());
}
