#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <thread>

#include "platform/database/Recordset.h"
#include "platform/system/Paths.h"
#include "store/References.h"
#include "store/SampleWords.h"
#include "support/Books.h"
#include "support/TemporaryFolder.h"

namespace {

TEST(References, KnowEveryTownOfTheSample) {
    const support::TemporaryFolder folder;
    store::CreateReferences(folder.Path());
    platform::Connection references;
    references.Open(folder / "References.mdb", platform::OpenMode::ReadOnly);
    for (const store::SampleTown& town : store::SampleTowns()) {
        SCOPED_TRACE(town.zip);
        platform::Recordset place;
        place.Open(references, "SELECT * FROM ZipCodes WHERE Zip = " + std::string(town.zip));
        ASSERT_EQ(place.RecordCount(), 1);
        EXPECT_EQ(place["City"].AsText(), town.city);
        EXPECT_EQ(place["State"].AsText(), town.state);
        EXPECT_EQ(place["County"].AsText(), town.county);
        const auto url = references.Scalar(
            "SELECT URL FROM TaxURL WHERE County = ? AND StateAbbr = ?", {town.county, town.state});
        ASSERT_TRUE(url.has_value());
        EXPECT_THAT(url->AsText(), testing::StartsWith("https://taxes."));
        EXPECT_THAT(url->AsText(), testing::HasSubstr(".example/"));
    }
}

TEST(References, HoldEachZipCodeOnce) {
    std::set<std::int32_t> seen;
    std::set<std::string_view> states;
    for (const store::ZipCode& each : store::ZipCodes()) {
        EXPECT_TRUE(seen.insert(each.zip).second) << each.zip;
        EXPECT_GE(each.zip, 501);
        EXPECT_LE(each.zip, 99'950);
        EXPECT_EQ(each.state.size(), 2U) << each.zip;
        EXPECT_FALSE(each.city.empty() || each.county.empty()) << each.zip;
        states.insert(each.state);
    }
    EXPECT_EQ(states.size(), 51U);
}

TEST(References, AreMadeOnceBySeveralProgramsAndStay) {
    const support::TemporaryFolder folder;
    {
        std::vector<std::jthread> programs;
        for (int i = 0; i < 4; ++i)
            programs.emplace_back([&] { EXPECT_NO_THROW(store::CreateReferences(folder.Path())); });
    }
    const auto file = folder / store::kReferencesFile;
    const std::string before = platform::ReadWholeFile(file);
    EXPECT_NO_THROW(store::CreateReferences(folder.Path()));
    EXPECT_EQ(platform::ReadWholeFile(file), before);
    EXPECT_THROW(store::CreateReferences(folder / "missing"), platform::Error);
    platform::Connection references;
    references.Open(file, platform::OpenMode::ReadOnly);
    EXPECT_EQ(support::Rows(references, "SELECT Count(*) FROM ZipCodes"),
              std::vector{std::to_string(store::ZipCodes().size())});
}

} // namespace
