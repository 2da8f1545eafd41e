#include "leases/Story.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "leases/LeaseWalk.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

std::vector<std::filesystem::path> StoryFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(
             std::filesystem::path(VESTREL_TEST_DATA) / "stories")) {
        if (entry.path().extension() == ".story") files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string TestName(const testing::TestParamInfo<std::filesystem::path>& info) {
    std::string name = info.param.stem().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

class LeaseStory : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(LeaseStory, EndsAsTold) {
    const Story story = ReadStory(GetParam());
    ASSERT_FALSE(story.then.empty()) << "a story without an end tells nothing";
    const support::TemporaryFolder folder;
    EXPECT_EQ(LiveThrough(story, folder.Path() / "db"), story.then);
}

INSTANTIATE_TEST_SUITE_P(Stories, LeaseStory, testing::ValuesIn(StoryFiles()), TestName);

TEST(LeaseStories, TellOfEveryKindOfCharge) {
    std::string all;
    for (const auto& file : StoryFiles()) {
        for (const std::string& line : ReadStory(file).then)
            all += line + '\n';
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
