// SPDX-License-Identifier: MIT
// Replays the fuzzer's corpus and what random mutations make of it, so that the sanitizers see both in every
// run.
#include <gtest/gtest.h>

#include "FieldSamples.h"
#include "fuzz/FieldTextCheck.h"

#include <chrono>
#include <random>

namespace
{

using fuzz::Input;

std::vector<Input> corpus()
{
    return fuzz::inputsOf(SCOPIX_SOURCE_DIR "/fuzz/corpus/field_text");
}

// The texts that the tests know of, for every field of the gallery.
std::vector<Input> samples()
{
    std::vector<Input> inputs;
    for (const FieldSample& sample : fieldSamples()) {
        for (const auto& texts : {sample.goodTexts(), sample.badTexts()}) {
            for (const std::string& text : texts) {
                Input input(2);
                input.insert(input.end(), text.begin(), text.end());
                inputs.push_back(input);
            }
        }
    }
    return inputs;
}

void mutate(Input& input, const Input& other, std::mt19937& random)
{
    const auto below = [&random](std::size_t limit) { return limit == 0 ? 0 : random() % limit; };
    const auto at = input.begin() + static_cast<std::ptrdiff_t>(below(input.size()));
    switch (random() % 5) {
    case 0:
        *at = static_cast<std::uint8_t>(random());
        break;
    case 1:
        *at ^= static_cast<std::uint8_t>(1U << (random() % 8));
        break;
    case 2:
        input.insert(at, static_cast<std::uint8_t>(random()));
        break;
    case 3:
        if (input.size() > 3)
            input.erase(at);
        break;
    default:
        const auto from = other.begin() + static_cast<std::ptrdiff_t>(below(other.size()));
        input.insert(at, from,
                     from + static_cast<std::ptrdiff_t>(below(static_cast<std::size_t>(other.end() - from))));
        break;
    }
}

} // namespace

TEST(FieldTextFuzz, TheCorpusHoldsForEveryField)
{
    fuzz::FieldTextCheck check;
    const auto inputs = corpus();
    ASSERT_FALSE(inputs.empty());
    for (const Input& input : inputs)
        check(input.data(), input.size());
}

TEST(FieldTextFuzz, MutationsHoldForEveryField)
{
    // SCOPIX_FUZZ_SECONDS asks for more than what every run can afford.
    const char* wanted = std::getenv("SCOPIX_FUZZ_SECONDS");
    const std::chrono::seconds duration(wanted ? std::atoi(wanted) : 2);
    fuzz::FieldTextCheck check;
    std::vector<Input> inputs = corpus();
    const auto more = samples();
    inputs.insert(inputs.end(), more.begin(), more.end());
    std::mt19937 random(20'261'121);
    const auto end = std::chrono::steady_clock::now() + duration;
    for (int round = 0; round < 2000 || std::chrono::steady_clock::now() < end; ++round) {
        Input input = inputs[random() % inputs.size()];
        input.resize(std::max<std::size_t>(input.size(), 2));
        input[0] = static_cast<std::uint8_t>(random());
        input[1] = static_cast<std::uint8_t>(random());
        for (auto count = random() % 6; count > 0; --count)
            mutate(input, inputs[random() % inputs.size()], random);
        if (input.size() < 4096)
            check(input.data(), input.size());
    }
}
