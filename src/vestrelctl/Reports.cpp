#include <iostream>
#include <memory>
#include <string>

#include "core/AppPath.h"
#include "core/Globals.h"
#include "core/ShippedFiles.h"
#include "platform/system/Paths.h"
#include "platform/values/Csv.h"
#include "reports/ReportList.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/ReportsFolder.h"

namespace vestrelctl {

namespace {

void PrintCatalogue() {
    std::cout << R"("Index","FileName","Kind","Form","Tab","Description","Notes","Icon",)"
              << R"("SelectItem","SelectDetail","SelectYear","DateRange")" << '\n';
    for (int index = 1; index <= reports::ReportCount(); ++index) {
        const reports::ReportDef& report = *reports::FindReport(index);
        const auto number = [](auto code) {
            return platform::Value(static_cast<std::int32_t>(code));
        };
        std::string line = std::to_string(index);
        for (const platform::Value& value :
             {platform::Value(report.FileName), number(report.Kind), number(report.Form),
              number(report.Tab), platform::Value(report.Description),
              platform::Value(report.Notes), number(report.Icon), number(report.SelectItem),
              platform::Value(report.SelectDetail), platform::Value(report.SelectYear),
              number(report.DateRange)}) {
            line += ',';
            platform::AppendCsvCell(line, value);
        }
        std::cout << line << '\n';
    }
}

} // namespace

void UseReportsFolder(const std::string& folder) {
    if (!folder.empty()) core::App().ReportPath = platform::AddBackslash(folder);
}

void LoadCatalogue() {
    const core::Globals& app = core::App();
    if (app.ReportPath == platform::AddBackslash(app.AppPath + "Reports"))
        core::InstallShippedFiles(core::ShippedPath("Reports"), app.ReportPath);
    reports::LoadReportList();
}

std::filesystem::path ReportsFolder() {
    return core::App().ReportPath;
}

void AddReports(CLI::App& line) {
    CLI::App* command = line.add_subcommand("reports", "The catalogue of reports as CSV");
    auto folder = std::make_shared<std::string>();
    command->add_option("--reports", *folder, "The folder of the definition files")
        ->type_name("DIR");
    command->callback([folder] {
        UseReportsFolder(*folder);
        LoadCatalogue();
        PrintCatalogue();
    });
}

} // namespace vestrelctl
