#include "reports/ReportList.h"

#include <filesystem>
#include <string>
#include <vector>

#include "core/Globals.h"
#include "platform/system/Clock.h"
#include "platform/values/Text.h"
#include "reports/CatalogueReader.h"
#include "reports/LineGrammar.h"

namespace reports {

namespace fs = std::filesystem;

namespace {

std::vector<ReportDef>& Catalogue() {
    static std::vector<ReportDef> reports;
    return reports;
}

ReportDef NewEntry(const std::string& fileName, ReportKind kind) {
    ReportDef report;
    report.FileName = fileName;
    report.Kind = kind;
    report.SelectedYear = std::to_string(platform::Today().Year());
    return report;
}

bool HasExtension(const std::string& name, std::string_view extension) {
    return name.size() > extension.size() &&
           platform::EqualIgnoringCase(name.substr(name.size() - extension.size()), extension);
}

/// Returns the files of the folder with this extension, in the folder's own order.
std::vector<std::string> FilesOf(const fs::path& folder, std::string_view extension) {
    std::vector<std::string> names;
    std::error_code failure;
    for (fs::directory_iterator at(folder, failure), end; !failure && at != end;
         at.increment(failure)) {
        std::error_code unreadable;
        const std::string name = at->path().filename().string();
        if (HasExtension(name, extension) && at->is_regular_file(unreadable)) names.push_back(name);
    }
    return names;
}

void AddFiles(const fs::path& folder, std::string_view extension, ReportKind kind) {
    for (const std::string& name : FilesOf(folder, extension)) {
        ReportDef report = NewEntry(name, kind);
        report.Description = name.substr(0, name.size() - extension.size());
        if (const auto text = ReadDefinition(folder / name)) ReadCatalogueKeys(*text, report);
        Catalogue().push_back(std::move(report));
    }
}

} // namespace

void LoadReportList() {
    const fs::path folder = core::App().ReportPath;
    Catalogue().clear();
    Catalogue().push_back(NewEntry(core::App().SysReportName, ReportKind::Scratch));
    AddFiles(folder, ".rpt", ReportKind::Report);
    AddFiles(folder, ".rcpt", ReportKind::Receipt);
}

int ReportCount() {
    return static_cast<int>(Catalogue().size());
}

ReportDef* FindReport(int index) {
    if (index < 1 || index > ReportCount()) return nullptr;
    return &Catalogue()[static_cast<std::size_t>(index) - 1];
}

int FindReportNamed(std::string_view name) {
    for (const auto field : {&ReportDef::Description, &ReportDef::FileName}) {
        for (int index = 1; index <= ReportCount(); ++index) {
            if (platform::EqualIgnoringCase(FindReport(index)->*field, name)) return index;
        }
    }
    return 0;
}

} // namespace reports
