#include <filesystem>

#include "platform/system/Paths.h"
#include "reports/CheckReport.h"
#include "reports/ReportsFixture.h"

namespace {

using namespace tests;

/// The definitions that the page on report files shows: the blocks after "```rpt".
std::vector<std::string> Examples() {
    const std::string page = platform::ReadWholeFile(std::filesystem::path(VESTREL_TEST_DATA) /
                                                     "../../docs/report-files.md");
    std::vector<std::string> examples;
    const std::string opening = "```rpt\n";
    for (auto at = page.find(opening); at != std::string::npos; at = page.find(opening, at)) {
        at += opening.size();
        examples.emplace_back(page, at, page.find("```", at) - at);
    }
    return examples;
}

class ReportGuide : public Reports {
  protected:
    ReportGuide() {
        for (const char* sql :
             {"INSERT INTO Building (IdBuilding, Address, City, PurchDate, PurchPrice, DeprBasis, "
              "DeprPeriod, DeprMethod) VALUES (5, '1 Elm', 'Salem', '07/01/2020', 90000, 80000, "
              "27.5, 'Straight Line')",
              "INSERT INTO Unit (IdUnit, IdBuilding, Unit, Status, Rent) VALUES (6, 5, 'A', "
              "'Avaliable', 900)",
              "INSERT INTO Tenant (IdTenant, FirstName, LastName) VALUES (7, 'Ann', 'Lee')",
              "INSERT INTO Lease (IdLease, IdTenant, IdUnit, Rent, RentDue, DateNextDue) VALUES "
              "(5, 7, 6, 900, 450, '6/1/2024')",
              "INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, TaxCategory, "
              "IEN, Amount) VALUES (8, '05/01/2024', 'Lee', 'Rent Payment', 0, 900)"}) {
            CoreBooks::Run(sql);
        }
        report.SelectedId = 5;
    }
};

TEST_F(ReportGuide, ShowsDefinitionsThatWork) {
    const auto examples = Examples();
    const std::vector<std::string> expected = {
        "row 1 Elm|A|900.00",      "p Total received = 900.00", "row 2024 Depreciation|2,908.80",
        "row Two months|1,800.00", "p Total rent = 900.00",
    };
    ASSERT_EQ(examples.size(), expected.size());
    for (std::size_t i = 0; i < examples.size(); ++i) {
        for (const auto& fault : reports::CheckReport(examples[i], reports::ReportKind::Report))
            ADD_FAILURE() << "example " << i + 1 << ", line " << fault.line << ": " << fault.text;
        std::string all;
        for (const std::string& line : Lines(examples[i]))
            all += line + "\n";
        EXPECT_EQ(all.find("No records found."), std::string::npos) << all;
        EXPECT_NE(all.find(expected[i]), std::string::npos) << all;
    }
}

} // namespace
