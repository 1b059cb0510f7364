// SPDX-License-Identifier: MIT
// Replays the fuzzer's corpus, so that the sanitizers see it in every run.
#include <gtest/gtest.h>

#include "fuzz/SceneFileCheck.h"

TEST(SceneFileFuzz, TheCorpusHolds)
{
    fuzz::SceneFileCheck check;
    const auto inputs = fuzz::inputsOf(SCOPIX_SOURCE_DIR "/fuzz/corpus/scene_file");
    ASSERT_FALSE(inputs.empty());
    for (const fuzz::Input& input : inputs)
        check(input.data(), input.size());
}
