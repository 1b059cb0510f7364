// SPDX-License-Identifier: MIT
// What the fuzzer of expressions found, and the seeds it starts from.
#include "fuzz/ExpressionCheck.h"

#include <gtest/gtest.h>

TEST(ExpressionFuzz, EveryKnownInputHasAValueOrASentence)
{
    fuzz::ExpressionCheck check;
    const auto inputs = fuzz::inputsOf(SCOPIX_SOURCE_DIR "/fuzz/corpus/expression");
    EXPECT_GE(inputs.size(), 14U);
    for (const fuzz::Input& input : inputs)
        check(input.data(), input.size());
}
