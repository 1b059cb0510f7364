// SPDX-License-Identifier: MIT
#include <xsg/frames/SoFrameStatistics.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

constexpr std::size_t FewestNumbers = 8;

// The smallest of the sorted numbers that so large a share of them does not exceed.
double quantile(const std::vector<double>& sorted, double share)
{
    const auto place = static_cast<std::size_t>(std::ceil(share * static_cast<double>(sorted.size())));
    return sorted[std::clamp<std::size_t>(place, 1, sorted.size()) - 1];
}

double medianOf(std::vector<double> numbers)
{
    if (numbers.empty())
        return 0;
    std::sort(numbers.begin(), numbers.end());
    const std::size_t half = numbers.size() / 2;
    return numbers.size() % 2 ? numbers[half] : (numbers[half - 1] + numbers[half]) / 2;
}

struct Ranked {
    double number;
    bool isFirst;
};

// The sum of the ranks of the first set; equal numbers share theirs, and `ties` grows by what that takes from
// the variance.
double rankSum(std::vector<Ranked>& all, double& ties)
{
    std::sort(all.begin(), all.end(), [](const Ranked& a, const Ranked& b) { return a.number < b.number; });
    double sum = 0;
    for (std::size_t first = 0; first < all.size();) {
        std::size_t end = first;
        std::size_t ofFirst = 0;
        for (; end < all.size() && all[end].number == all[first].number; ++end)
            ofFirst += all[end].isFirst;
        const auto count = static_cast<double>(end - first);
        sum += static_cast<double>(ofFirst) * (static_cast<double>(first + end) + 1) / 2;
        ties += count * count * count - count;
        first = end;
    }
    return sum;
}

double chanceOf(const std::vector<double>& before, const std::vector<double>& after)
{
    std::vector<Ranked> all;
    for (const double number : before)
        all.push_back({number, true});
    for (const double number : after)
        all.push_back({number, false});
    double ties = 0;
    const auto n = static_cast<double>(before.size());
    const auto m = static_cast<double>(after.size());
    const double u = rankSum(all, ties) - n * (n + 1) / 2;
    const double total = n + m;
    const double variance = n * m / 12 * (total + 1 - ties / (total * (total - 1)));
    if (variance <= 0)
        return 1; // all the same
    const double distance = std::max(0.0, std::abs(u - n * m / 2) - 0.5);
    return std::erfc(distance / std::sqrt(2 * variance));
}

} // namespace

SoFrameSummary SoFrameSummary::of(std::vector<double> numbers)
{
    if (numbers.empty())
        return {};
    std::sort(numbers.begin(), numbers.end());
    SoFrameSummary summary;
    summary.mean = std::accumulate(numbers.begin(), numbers.end(), 0.0) / static_cast<double>(numbers.size());
    summary.median = medianOf(numbers);
    summary.percent95 = quantile(numbers, 0.95);
    summary.percent99 = quantile(numbers, 0.99);
    summary.longest = numbers.back();
    for (double& number : numbers)
        number = std::abs(number - summary.median);
    summary.spread = medianOf(std::move(numbers));
    return summary;
}

SoFrameComparison SoFrameComparison::of(const std::vector<double>& before, const std::vector<double>& after)
{
    SoFrameComparison comparison;
    comparison.before = medianOf(before);
    comparison.after = medianOf(after);
    if (before.size() >= FewestNumbers && after.size() >= FewestNumbers)
        comparison.chance = chanceOf(before, after);
    return comparison;
}
