#include <gtest/gtest.h>

#include <string>

#include "reports/CheckReport.h"
#include "support/Cases.h"

namespace {

/// The faults of a definition as "line: text; line: text".
std::string FaultsOf(std::string_view definition) {
    std::string faults;
    for (const auto& fault : reports::CheckReport(definition, reports::ReportKind::Report)) {
        faults += (faults.empty() ? "" : "; ") + std::to_string(fault.line) + ": " + fault.text;
    }
    return faults;
}

TEST(ReportCheck, FindsWhatIsWrongInEachLine) {
    for (const char* const table :
         {"faults of each kind", "tags that nobody fills", "commands without effect"}) {
        support::ForEachCase(VESTREL_TEST_DATA "/check.cases", table,
                             [](const support::Case& each) {
                                 EXPECT_EQ(FaultsOf(each["definition"]), each["faults"]);
                             });
    }
}

} // namespace
