// A storm of random events, repeatable from its seed, through the demo's
// board of every widget at every pixel format: no event may write outside
// the surface, lose the focus or break the text field.
#include <chrono>
#include <cstdio>
#include <vector>

#include <gtest/gtest.h>

#include "support/event_script.h"
#include "support/surfaces.h"
#include "support/widget_storm.h"

namespace {

using kvt_test::FormatCase;

constexpr int kEvents = 100000;
constexpr unsigned kSeed = 20261123;

class EventStorm : public ::testing::TestWithParam<FormatCase> {};

TEST_P(EventStorm, EveryWidgetSurvivesRandomEvents)
{
    kvt_test::WidgetStorm storm(GetParam());
    ASSERT_TRUE(storm.ok());
    ASSERT_EQ(storm.Broken(), "") << "after the first drawing";

    const std::vector<Uint8> bytes = kvt_test::StormBytes(kEvents, kSeed);
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
