#include <map>

#include "platform/database/Recordset.h"
#include "platform/values/Conversions.h"
#include "reports/ShippedFixture.h"
#include "support/Cases.h"

namespace {

using namespace tests;
using support::Case;
using support::ForEachCase;

constexpr const char* kCases = VESTREL_TEST_DATA "/figures.cases";

/// A statement with its phrases written out, from the innermost.
std::string WrittenOut(std::string text) {
    static const auto phrases = [] {
        std::map<std::string, std::string> read;
        ForEachCase(kCases, "phrases",
                    [&](const Case& each) { read[each["name"]] = each["text"]; });
        return read;
    }();
    for (auto close = text.find('}'); close != std::string::npos; close = text.find('}')) {
        const auto open = text.rfind('{', close);
        const std::string name = text.substr(open + 1, close - open - 1);
        const auto colon = std::min(name.find(':'), name.size());
        const std::string argument = name.substr(std::min(colon + 1, name.size()));
        std::string phrase = phrases.at(name.substr(0, colon));
        for (auto at = phrase.find('@'); at != std::string::npos; at = phrase.find('@'))
            phrase.replace(at, 1, argument);
        text.replace(open, close - open + 1, phrase);
    }
    return text;
}

class ShippedFigures : public Shipped {
  protected:
    /// Expects an amount at each of the case's places.
    static void ExpectAtPlaces(const FlowLines& flow, const Case& each, double expected) {
        std::string_view rest = each["places"];
        while (!rest.empty()) {
            const auto end = std::min(rest.find("; "), rest.size());
            const std::string_view place = rest.substr(0, end);
            EXPECT_NEAR(Figure(flow, place).ToDouble(), expected, each.Number<double>("tolerance"))
                << place;
            rest.remove_prefix(std::min(end + 2, rest.size()));
        }
    }
};

TEST_F(ShippedFigures, AreThoseOfTheBooks) {
    std::map<std::string, FlowLines> flows;
    ForEachCase(kCases, "of the books", [&](const Case& each) {
        const std::string file = each["report"] + ".rpt";
        if (!flows.contains(file)) flows[file] = Run(file);
        const double expected = Sum(WrittenOut(each["select"])).ToDouble();
        EXPECT_NE(expected, 0);
        ExpectAtPlaces(flows[file], each, expected);
    });
    report.DetailLevel = reports::Detail::Summary;
    const FlowLines summary = Run("Income and Expense by Building.rpt");
    EXPECT_LT(summary.lines.size(), flows["Income and Expense by Building.rpt"].lines.size());
    const std::string net = "SELECT Sum(IIf(IEN = 0, Amount, -Amount)) {of 2025} AND IEN IN (0, 1)";
    EXPECT_NEAR(Figure(summary, "Net").ToDouble(), Sum(WrittenOut(net)).ToDouble(), 0.006);
}

TEST_F(ShippedFigures, OfEachRecordAreItsOwn) {
    ForEachCase(kCases, "of each record", [this](const Case& each) {
        bool isAnyNotZero = false;
        platform::Recordset rows;
        for (rows.Open(core::App().Connection, WrittenOut(each["select"])); !rows.Eof();
             rows.MoveNext()) {
            const double expected = rows[1].IsNull() ? 0 : rows[1].AsDouble();
            isAnyNotZero = isAnyNotZero || expected != 0;
            report.SelectedId = rows[0].AsLong();
            SCOPED_TRACE(report.SelectedId);
            ExpectAtPlaces(Run(each["report"]), each, expected);
        }
        EXPECT_TRUE(isAnyNotZero);
    });
}

TEST_F(ShippedFigures, OfBuildingsStandInTheirRows) {
    ForEachCase(kCases, "of buildings", [this](const Case& each) {
        const auto firstColumn = each.Number<std::size_t>("first");
        std::map<std::string, std::vector<std::string>> shown;
        for (const auto& cells : TableRows(Run(each["report"]), "Building"))
            shown.try_emplace(cells[0], cells);
        double sum = 0;
        platform::Recordset rows;
        for (rows.Open(core::App().Connection,
                       "SELECT Address, " + WrittenOut(each["columns"]) + " FROM Building AS b");
             !rows.Eof(); rows.MoveNext()) {
            const std::string address = rows[0].AsText();
            for (std::size_t i = 1; i < rows.FieldCount(); ++i) {
                sum += std::abs(rows[i].AsDouble());
                if (!shown.contains(address) && rows[i].AsDouble() == 0) continue;
                EXPECT_NEAR(platform::StrToMoney(shown[address].at(firstColumn + i - 1)).ToDouble(),
                            rows[i].AsDouble(), 0.006)
                    << address << ' ' << i;
            }
        }
        EXPECT_GT(sum, 0);
    });
}

} // namespace
