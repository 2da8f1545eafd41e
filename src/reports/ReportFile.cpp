#include "reports/ReportFile.h"

#include <algorithm>
#include <array>

#include <fmt/core.h>

#include "platform/values/Conversions.h"
#include "platform/values/Text.h"
#include "reports/LineGrammar.h"
#include "reports/ReportError.h"
#include "reports/RunTimeReader.h"

namespace reports {

namespace {

struct PageKey {
    std::string_view key;
    void (*apply)(ReportFile& report, std::string_view value);
};

std::optional<platform::PageOrientation> OrientationOf(std::string_view word) {
    if (platform::EqualIgnoringCase(word, "LANDSCAPE")) return platform::PageOrientation::Landscape;
    if (platform::EqualIgnoringCase(word, "PORTRAIT")) return platform::PageOrientation::Portrait;
    return std::nullopt;
}

void ReadScale(ReportFile& report, std::string_view value) {
    const auto comma = value.find(',');
    report.ScaleX = platform::StrToInt32(value.substr(0, comma));
    report.ScaleY = 0;
    if (comma == std::string_view::npos) return;
    const std::string_view rest = value.substr(comma + 1);
    report.ScaleY = platform::StrToInt32(rest.substr(0, rest.find(',')));
}

/// The keys that work in every section.
constexpr auto kPageKeys = std::to_array<PageKey>({
    {"TITLE", [](ReportFile& r, std::string_view v) { r.Title = v; }},
    {"SUBTITLE", [](ReportFile& r, std::string_view v) { r.SubTitle = v; }},
    {"SHOWTITLE", [](ReportFile& r, std::string_view v) { r.ShowTitle = platform::StrToBool(v); }},
    {"SHOWHEADER",
     [](ReportFile& r, std::string_view v) { r.ShowHeader = platform::StrToBool(v); }},
    {"SHOWFOOTER",
     [](ReportFile& r, std::string_view v) { r.ShowFooter = platform::StrToBool(v); }},
    {"ORIENTATION",
     [](ReportFile& r, std::string_view v) { r.FileOrientation = OrientationOf(v); }},
    {"SCALE", ReadScale},
    {"DEBUG", [](ReportFile& r, std::string_view) { r.DebugOn = true; }},
});

bool NamesDate(std::string_view value) {
    return platform::ContainsIgnoringCase(value, "%STARTDATE%") ||
           platform::ContainsIgnoringCase(value, "%ENDDATE%");
}

} // namespace

bool IsPageKey(std::string_view key) {
    return std::ranges::find(kPageKeys, key, &PageKey::key) != kPageKeys.end();
}

void RunTimeReader::Read(const DefinitionLine& line) {
    try {
        ReadLine(line);
    } catch (const ReportError&) {
        throw;
    } catch (const platform::Error& fault) {
        throw ReportError(line.number, fmt::format("{}: {}", line.name, fault.what()));
    }
}

void RunTimeReader::ReadLine(const DefinitionLine& line) {
    if (OpensSection(line)) return;
    if (state_ != State::General && NamesDate(line.value)) report_.UsesDates = true;
    const auto page = std::ranges::find(kPageKeys, line.key, &PageKey::key);
    if (page != kPageKeys.end()) {
        page->apply(report_, line.value);
    } else if (state_ == State::Loop) {
        if (line.key == "SQLQUERY") {
            report_.LoopQuery = line.value;
            report_.LoopLine = line.number;
        }
    } else if (const SectionCommand* command = FindSectionCommand(line.key)) {
        GiveToSection(*command, line);
    }
}

bool RunTimeReader::OpensSection(const DefinitionLine& line) {
    if (line.Opens("TEXT")) {
        text_ = AddSection<clsRptText>(line.number);
        state_ = State::Text;
    } else if (line.Opens("DATA")) {
        data_ = AddSection<clsRptData>(line.number);
        state_ = State::Data;
    } else if (line.Opens("LOOP")) {
        phase_ = LoopPhase::Inside;
        state_ = State::Loop;
    } else if (line.Opens("ENDLOOP")) {
        phase_ = LoopPhase::After;
        state_ = State::Other;
    } else if (line.Opens("GENERAL")) {
        state_ = State::General;
    } else if (line.Opens("HEADER") || line.Opens("FOOTER")) {
        state_ = State::Other;
    } else {
        return false;
    }
    return true;
}

template <typename Section>
Section* RunTimeReader::AddSection(int line) {
    auto section = std::make_unique<Section>();
    section->Line = line;
    section->Sequence = phase_;
    Section* added = section.get();
    report_.Sections.push_back(std::move(section));
    return added;
}

void RunTimeReader::GiveToSection(const SectionCommand& command, const DefinitionLine& line) {
    if (state_ != State::Text && state_ != State::Data) return;
    const bool isText = state_ == State::Text;
    const bool isThere = isText ? command.ofText != nullptr : command.ofData != nullptr;
    if (!isThere) {
        throw ReportError(line.number, fmt::format("{} is not a command of a {} section", line.key,
                                                   isText ? "[TEXT]" : "[DATA]"));
    }
    if (isText) {
        command.ofText(*text_, line);
    } else {
        command.ofData(*data_, line);
    }
}

ReportFile ReadReport(std::string_view text) {
    RunTimeReader reader;
    LineReader lines(text, Blanks::Trim);
    while (const auto line = lines.Next())
        reader.Read(*line);
    return reader.TakeReport();
}

ReportFile LoadReportFile(const std::filesystem::path& file) {
    const auto text = ReadDefinition(file);
    if (!text) return {};
    try {
        return ReadReport(*text);
    } catch (const ReportError& fault) {
        throw ReportError(file.filename().string(), fault);
    }
}

} // namespace reports
