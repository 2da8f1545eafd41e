#include <filesystem>

#include "core/Configuration.h"
#include "core/Settings.h"
#include "platform/system/Paths.h"
#include "reports/ReportsFixture.h"
#include "reports/WriteReport.h"
#include "support/Golden.h"

namespace {

using namespace tests;
namespace fs = std::filesystem;

using support::ExpectGolden;

class Golden : public Reports {
  protected:
    Golden() {
        core::Config().CompanyName = "Caf\xC3\xA9 & Sons";
        for (const char* sql :
             {"INSERT INTO Building (IdBuilding, Address, City, State, PurchDate, PurchPrice, "
              "DeprBasis, DeprPeriod, DeprMethod, Multi) VALUES (5, '1 Elm | \"A\"', 'Salem', "
              "'OR', '07/01/2020', 90000, 80000, 27.5, 'Straight Line', True)",
              "INSERT INTO Building (IdBuilding, Address) VALUES (6, 'Oak')",
              "INSERT INTO Transactions (IdTransaction, IdBuilding, DateEffective, Description, "
              "TaxCategory, Amount, Reconciled) VALUES (1, 5, '02/29/2024', 'a|b;c <d> & e', "
              "'Rent', 1234.5, True)",
              "INSERT INTO Transactions (IdTransaction, IdBuilding, DateEffective, Description, "
              "TaxCategory, Amount, Reconciled) VALUES (2, 5, '03/01/2024', 'A description so "
              "long that it goes on in a second line of its cell, and then in a third', 'Fee', "
              "-12, False)",
              "INSERT INTO Transactions (IdTransaction, IdBuilding, DateEffective, Description, "
              "TaxCategory, Amount, Reconciled) VALUES (3, 5, '', "
              "'\xF0\x9F\x8F\xA0 \xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xE4\xBD\xA0', 'Rent', 0.5, "
              "False)"}) {
            CoreBooks::Run(sql);
        }
        report.Description = "Everything";
        report.SelectItem = core::kBuilding;
        report.SelectedId = 5;
        report.SelectedYear = "2021";
        // The same paper on every machine.
        core::SetRegString(R"(SOFTWARE\Vestrel\Global\Settings)", R"(rpt\Paper)", "Letter");
    }

    fs::path Definition() const {
        return fs::path(VESTREL_TEST_DATA) / "expected" / "everything.rpt";
    }
    std::string Written(reports::FileFormat format, const std::string& name) {
        reports::ReportRun run(report, Definition());
        reports::WriteReport(run, format, PathTo(name));
        return platform::ReadWholeFile(PathTo(name));
    }
};

TEST_F(Golden, FilesAreAsTheyWere) {
    ExpectGolden("everything.html", Written(reports::FileFormat::Html, "a.html"));
    ExpectGolden("everything.rtf", Written(reports::FileFormat::Rtf, "a.rtf"));
    ExpectGolden("everything.txt", Written(reports::FileFormat::Text, "a.txt"));
    platform::FixedMetrics metrics;
    platform::PrintedDocument document;
    platform::PrintSurface page(metrics, &document, nullptr);
    reports::ReportRun(report, Definition()).Draw(page);
    std::string pages;
    for (std::size_t i = 0; i < document.PageCount(); ++i)
        pages += platform::DescribePage(document.Page(i));
    ExpectGolden("everything.pages", pages);
    EXPECT_TRUE(Written(reports::FileFormat::Pdf, "a.pdf").starts_with("%PDF-"));
}

TEST_F(Golden, BadInputGivesADocument) {
    // 300 columns, long words, many rows on a page that is too narrow for them: nothing leaves the
    // page at the right. Text of the smallest size may reach a point over its margin.
    std::string fields;
    for (int i = 0; i < 300; ++i)
        fields += (i == 0 ? "" : ", ") + std::string("Amount AS [c") + std::to_string(i) + "]";
    for (const std::string& sql :
         {"SELECT " + fields + " FROM Transactions",
          "SELECT '" + std::string(60, 'W') + "' AS A, '" + std::string(60, 'x') +
              "' AS B, Amount FROM Transactions",
          std::string("SELECT 1 AS A FROM Transactions AS a, Transactions AS b, Transactions AS c, "
                      "Transactions AS d, Transactions AS e")}) {
        const platform::PrintedDocument pages = Pages("[DATA]\nSHOWTABLE\nSQLQUERY=" + sql + "\n");
        ASSERT_GT(pages.PageCount(), 0U);
        for (std::size_t i = 0; i < pages.PageCount(); ++i) {
            const platform::PrintedPage one = pages.Page(i);
            for (const auto& item : one.Items())
                EXPECT_LE(item.x2, one.Width() - 1440 + platform::kTwipsPerPoint)
                    << sql.substr(0, 60);
        }
    }
}

} // namespace
