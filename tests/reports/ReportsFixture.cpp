#include "reports/ReportsFixture.h"

#include <filesystem>

#include "reports/ReportError.h"
#include "reports/ReportRun.h"

namespace tests {

namespace {

std::string Join(std::span<const std::string_view> cells) {
    std::string line;
    for (const std::string_view cell : cells) {
        if (!line.empty() || cell.data() != cells.front().data()) line += '|';
        line += cell;
    }
    return line;
}

} // namespace

void FlowLines::Paragraph(const platform::PrintStyle& style, std::string_view text) {
    styles.push_back(style);
    const auto level = static_cast<int>(style.heading);
    lines.push_back((level == 0 ? "p " : "h" + std::to_string(level) + " ") + std::string(text));
}

void FlowLines::BeginTable(const platform::PrintStyle&, const platform::PrintTable& table,
                           std::span<const platform::Twips> widths) {
    tables.push_back(table);
    std::string line = "table";
    for (std::size_t i = 0; i < widths.size(); ++i) {
        constexpr std::string_view kSides = "<^>";
        line += ' ';
        line += kSides[static_cast<std::size_t>(table.columns[i].align)];
        line += std::to_string(widths[i]);
    }
    lines.push_back(line);
    if (table.header.cells.empty()) return;
    std::string head = "head ";
    for (std::size_t i = 0; i < table.header.cells.size(); ++i)
        head += (i > 0 ? "|" : "") + table.header.cells[i];
    lines.push_back(head);
}

void FlowLines::TableRow(std::span<const std::string_view> cells) {
    lines.push_back("row " + Join(cells));
}

void FlowLines::Rule(const platform::PrintStyle&, std::string_view caption) {
    lines.push_back("rule " + std::string(caption));
}

Reports::Reports() {
    std::filesystem::create_directory(core::App().ReportPath);
    reports::ChooseForRecord(report, 0);
    report.Description = "Test";
    report.FileName = "test.rpt";
}

void Reports::WriteReport(std::string_view name, std::string_view text) {
    MakeFile("Reports/" + std::string(name), text);
}

FlowLines Reports::Run(std::string_view sections) {
    WriteReport("test.rpt", "[HEADER]\nShowTitle=False\n" + std::string(sections));
    reports::ReportRun run(report);
    platform::FixedMetrics metrics;
    FlowLines flow;
    platform::PrintSurface page(metrics, nullptr, &flow);
    run.Draw(page);
    return flow;
}

platform::PrintedDocument Reports::Pages(std::string_view definition) {
    WriteReport("test.rpt", definition);
    platform::FixedMetrics metrics;
    platform::PrintedDocument pages;
    platform::PrintSurface page(metrics, &pages, nullptr);
    reports::ReportRun(report).Draw(page);
    return pages;
}

std::string Reports::Fault(std::string_view sections) {
    try {
        Run(sections);
    } catch (const reports::ReportError& fault) {
        return fault.what();
    }
    return {};
}

} // namespace tests
