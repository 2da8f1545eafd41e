#include <gtest/gtest.h>

#include "leases/LeaseStory.h"
#include "leases/LeaseWalk.h"

namespace tests {

namespace {

std::vector<support::Story> Stories() {
    return support::ReadStories(std::filesystem::path(VESTREL_TEST_DATA) / "stories");
}

TEST_P(LeaseStory, EndsAsTold) {
    Play(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Stories, LeaseStory, testing::ValuesIn(Stories()), support::StoryName);

TEST(LeaseStories, TellOfEveryKindOfCharge) {
    std::string all;
    for (const support::Story& story : Stories()) {
        for (const support::StoryPart& part : story.parts) {
            for (const support::StoryLine& line : part.lines)
                all += line.text + '\n';
        }
    }
    using leases::ChargeKind;
    for (const ChargeKind kind : {ChargeKind::Rent, ChargeKind::Subsidy, ChargeKind::Discount,
                                  ChargeKind::OneTimeFee, ChargeKind::DailyFee}) {
        const std::string category = "'" + std::string(leases::CategoryOf(kind)) + "'";
        EXPECT_NE(all.find(category), std::string::npos) << "no story charges " << category;
    }
}

} // namespace

} // namespace tests
