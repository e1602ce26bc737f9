// A storm of random events, repeatable from its seed, through the demo's
// board of every widget at every pixel format: no event may write outside
// the surface, lose the focus or break the text field.
#include <chrono>
#include <cstdio>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "support/event_script.h"
#include "support/surfaces.h"
#include "support/widget_storm.h"

namespace {

using kvt_test::FormatCase;

constexpr int kEvents = 100000;
constexpr unsigned kSeed = 20261123;

// Random steps in bursts of one kind, as people act: a drag is many
// motions, typing many key presses, so that a burst can carry a widget
// far (a text field to its limit, a list to its end) before the next
// kind of event interrupts it. Typing bursts are the longest: they must
// be able to fill the text field.
std::vector<Uint8> StormBytes(int events)
{
    std::mt19937 rng(kSeed);
    std::vector<Uint8> bytes;
    bytes.reserve(size_t(events) * kvt_test::kStepBytes);
    while (bytes.size() < size_t(events) * kvt_test::kStepBytes) {
        const Uint8 kind = Uint8(rng());
        const bool typing = (kind & 7) == 4;
        for (int n = int(1 + rng() % (typing ? 300 : 32)); n > 0; --n) {
            bytes.push_back(Uint8((kind & 0x7f) | (rng() % 16 == 0 ? 0x80 : 0)));
            for (size_t i = 1; i < kvt_test::kStepBytes; ++i)
                bytes.push_back(Uint8(rng()));
        }
    }
    bytes.resize(size_t(events) * kvt_test::kStepBytes);
    return bytes;
}

class EventStorm : public ::testing::TestWithParam<FormatCase> {};

TEST_P(EventStorm, EveryWidgetSurvivesRandomEvents)
{
    kvt_test::WidgetStorm storm(GetParam());
    ASSERT_TRUE(storm.ok());
    ASSERT_EQ(storm.Broken(), "") << "after the first drawing";

    const std::vector<Uint8> bytes = StormBytes(kEvents);
    const auto steps = kvt_test::DecodeEventScript(bytes.data(), bytes.size(),
                                                   storm.kWidth, storm.kHeight);
    ASSERT_EQ(steps.size(), size_t(kEvents));

    const auto start = std::chrono::steady_clock::now();
    for (size_t i = 0; i < steps.size(); ++i) {
        const std::string broken = storm.Step(steps[i]);
        ASSERT_EQ(broken, "") << "after event " << i << " (type "
                              << int(steps[i].event.type) << ")";
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf("%d events in %.2f s: %.0f events per second\n", kEvents, took.count(),
                kEvents / took.count());
}

INSTANTIATE_TEST_SUITE_P(Formats, EventStorm, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
