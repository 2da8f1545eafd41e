#include "platform/database/RowBuffer.h"

#include <gtest/gtest.h>

#include <limits>

namespace platform {

namespace {

constexpr std::int64_t kMin64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMax64 = std::numeric_limits<std::int64_t>::max();

std::vector<Cell> EdgeCells(const std::string& shortText, const std::string& longText) {
    std::vector<Cell> cells{{}, Cell::OfReal(-0.5), Cell::OfReal(1e300), Cell::OfText("")};
    for (const std::int64_t number :
         {std::int64_t{0}, std::int64_t{1}, std::int64_t{-1}, std::int64_t{127}, std::int64_t{-128},
          std::int64_t{128}, std::int64_t{-32'768}, std::int64_t{32'768},
          std::int64_t{2'147'483'647}, std::int64_t{-2'147'483'649}, kMin64, kMax64}) {
        cells.push_back(Cell::OfInteger(number));
    }
    for (const std::size_t size : {1U, 238U, 239U, 240U, 255U, 256U})
        cells.push_back(Cell::OfText(std::string_view(longText).substr(0, size)));
    cells.push_back(Cell::OfText(longText));
    cells.push_back({Cell::Kind::Blob, 0, 0, shortText});
    cells.push_back({Cell::Kind::Blob, 0, 0, longText});
    return cells;
}

TEST(RowBuffer, GivesBackEveryKindOfValue) {
    const std::string longText(3'000'000, 'z');
    const std::string shortText = "ab";
    const std::vector<Cell> cells = EdgeCells(shortText, longText);
    RowBuffer rows;
    std::vector<std::uint32_t> places;
    for (int round = 0; round < 2; ++round) {
        rows.Clear();
        for (int row = 0; row < 3; ++row) {
            rows.Start();
            for (const Cell& cell : cells)
                rows.Put(cell);
            rows.Append();
        }
        ASSERT_EQ(rows.Size(), 3);
        rows.Locate(1, cells.size(), places);
        for (std::size_t i = 0; i < cells.size(); ++i) {
            EXPECT_EQ(rows.Read(1, places[i]), cells[i]) << i;
            EXPECT_EQ(rows.ReadAt(2, i), cells[i]) << i;
        }
    }
}

TEST(RowBuffer, ReplacesOneRowAndLeavesTheOthers) {
    RowBuffer rows;
    const auto put = [&](std::int64_t number) {
        rows.Put(Cell::OfInteger(77)); // of a row that was given up
        rows.Start();
        rows.Put(Cell::OfInteger(number));
    };
    for (int number = 0; number < 10'000; ++number) {
        put(number);
        rows.Append();
    }
    put(kMax64);
    rows.Replace(5'000);
    EXPECT_EQ(rows.ReadAt(4'999, 0).integer, 4'999);
    EXPECT_EQ(rows.ReadAt(5'000, 0).integer, kMax64);
    EXPECT_EQ(rows.ReadAt(9'999, 0).integer, 9'999);
    EXPECT_EQ(rows.Size(), 10'000);
}

} // namespace

} // namespace platform
