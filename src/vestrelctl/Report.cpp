#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include <fmt/core.h>

#include "core/Preferences.h"
#include "platform/values/Errors.h"
#include "reports/CatalogueReader.h"
#include "reports/CheckReport.h"
#include "reports/LineGrammar.h"
#include "reports/ReportList.h"
#include "reports/ReportRun.h"
#include "reports/WriteReport.h"
#include "vestrelctl/Arguments.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/ReportsFolder.h"

namespace vestrelctl {

namespace fs = std::filesystem;

namespace {

struct ReportWords {
    std::string name;
    std::string check;
    std::string folder;
    std::string output;
    std::int32_t id = 0;
    std::string year;
    std::string from;
    std::string to;
    std::string range;
    bool summary = false;
    bool landscape = false;
};

/// A report and the place of its file.
struct FoundReport {
    reports::ReportDef report;
    fs::path file;
};

/// Reads a file outside the catalogue in the same way as the catalogue would.
FoundReport ReadOutside(const fs::path& file) {
    const auto text = reports::ReadDefinition(file);
    if (!text) throw platform::Error(fmt::format("{} can't be read", file.string()));
    reports::ReportDef report;
    report.FileName = file.filename().string();
    report.Description = file.stem().string();
    if (file.extension() == ".rcpt") report.Kind = reports::ReportKind::Receipt;
    reports::ReadCatalogueKeys(*text, report);
    return {std::move(report), file};
}

FoundReport Find(const std::string& name) {
    if (name.find_first_of("/\\") != std::string::npos) return ReadOutside(name);
    LoadCatalogue();
    const int index = reports::FindReportNamed(name);
    if (index == 0) throw platform::Error(fmt::format("There is no report '{}'", name));
    const reports::ReportDef& report = *reports::FindReport(index);
    const fs::path file = ReportsFolder() / report.FileName;
    if (!fs::exists(file)) throw platform::Error(fmt::format("{} is missing", file.string()));
    return {report, file};
}

reports::DateRange RangeOf(const std::string& word) {
    using enum reports::DateRange;
    if (word == "current") return CurrentYear;
    if (word == "trailing") return TrailingYear;
    return word == "previous" ? PreviousYear : Select;
}

void Choose(reports::ReportDef& report, const ReportWords& words) {
    reports::ChooseForRecord(report, words.id);
    if (!words.year.empty()) report.SelectedYear = words.year;
    if (!words.from.empty()) report.StartDate = platform::Date::Parse(words.from);
    if (!words.to.empty()) report.EndDate = platform::Date::Parse(words.to);
    if (!words.range.empty()) report.DateChoice = RangeOf(words.range);
    if (words.summary) report.DetailLevel = reports::Detail::Summary;
    if (words.landscape) report.Orientation = platform::PageOrientation::Landscape;
}

void WriteFile(const ReportWords& words, const Options& options) {
    const auto format = reports::FormatOfFile(words.output);
    FoundReport found = Find(words.name);
    OpenBooks(options, Purpose::Read);
    core::LoadPreferences();
    Choose(found.report, words);
    reports::ReportRun run(found.report, found.file);
    reports::WriteReport(run, *format, words.output);
}

void Check(const std::string& file) {
    const auto text = reports::ReadDefinition(file);
    if (!text) throw platform::Error(fmt::format("{} can't be read", file));
    const auto faults = reports::CheckReport(*text, fs::path(file).extension() == ".rcpt"
                                                        ? reports::ReportKind::Receipt
                                                        : reports::ReportKind::Report);
    for (const reports::ReportFault& fault : faults)
        std::cout << file << ':' << fault.line << ": " << fault.text << '\n';
    if (!faults.empty()) {
        throw platform::Error(
            fmt::format("{} has {} fault{}", file, faults.size(), faults.size() == 1 ? "" : "s"));
    }
}

std::string IsReportFile(const std::string& file) {
    return reports::FormatOfFile(file) ? std::string()
                                       : "'" + file + "' doesn't end in .pdf, .html, .rtf or .txt";
}

std::string IsYear(const std::string& text) {
    const bool isYear = text.size() == 4 &&
                        text.find_first_not_of("0123456789") == std::string::npos && text > "0100";
    return isYear ? std::string() : "'" + text + "' is not a year of four digits";
}

void AddChoices(CLI::App& command, ReportWords& words) {
    command.add_option("--id", words.id, "The record that the report is about");
    command.add_option("--year", words.year, "The year")->check(CLI::Validator(IsYear, "YYYY", ""));
    command.add_option("--from", words.from, "The first day")->check(IsDate());
    command.add_option("--to", words.to, "The last day")->check(IsDate());
    command.add_option("--range", words.range, "The dates by rule")
        ->check(CLI::IsMember({"current", "trailing", "previous", "selected"}));
    command.add_flag("--summary", words.summary, "Show a summary instead of all details");
    command.add_flag("--landscape", words.landscape,
                     "Wide pages, unless the report says otherwise");
}

} // namespace

void AddReport(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("report", "Print a report into a file");
    auto words = std::make_shared<ReportWords>();
    CLI::Option* name = command->add_option(
        "name", words->name, "Its description, its file in the reports folder, or a path to it");
    CLI::Option* output =
        command->add_option("--output", words->output, "The file: .pdf, .html, .rtf or .txt")
            ->type_name("FILE")
            ->check(CLI::Validator(IsReportFile, "", ""));
    CLI::Option* check = command
                             ->add_option("--check", words->check,
                                          "Look for faults in a definition instead of printing")
                             ->type_name("FILE");
    command->add_option("--reports", words->folder, "The folder of the definition files")
        ->type_name("DIR");
    AddChoices(*command, *words);
    check->excludes(name)->excludes(output);
    command->callback([words, &options] {
        UseReportsFolder(words->folder);
        if (!words->check.empty()) {
            Check(words->check);
            return;
        }
        if (words->name.empty()) throw CLI::RequiredError("name");
        if (words->output.empty()) throw CLI::RequiredError("--output");
        WriteFile(*words, options);
    });
}

} // namespace vestrelctl
