#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/CoreFixture.h"
#include "platform/printing/PrintSurface.h"
#include "platform/printing/PrintedDocument.h"
#include "reports/ReportDef.h"

namespace tests {

/// The flow of a document as lines: "p text", "h1 text", "rule caption", "table <2880 >1440",
/// "head a|b", "row a|b".
class FlowLines : public platform::FlowSink {
  public:
    std::vector<std::string> lines;
    platform::DocumentInfo info;
    std::vector<platform::PrintTable> tables;
    std::vector<platform::PrintStyle> styles; ///< of the paragraphs

    void BeginFlow(const platform::DocumentInfo& begun) override { info = begun; }
    void Paragraph(const platform::PrintStyle& style, std::string_view text) override;
    void BeginTable(const platform::PrintStyle& style, const platform::PrintTable& table,
                    std::span<const platform::Twips> widths) override;
    void TableRow(std::span<const std::string_view> cells) override;
    void EndTable() override {}
    void Rule(const platform::PrintStyle& style, std::string_view caption) override;
    void EndFlow() override {}
};

/// Empty books and a reports folder.
class Reports : public CoreBooks {
  protected:
    Reports();

    void WriteReport(std::string_view name, std::string_view text);
    /// Runs a definition with the choices of `report` and returns its flow, without title, header
    /// and footer unless the definition asks for them.
    FlowLines Run(std::string_view sections);
    std::vector<std::string> Lines(std::string_view sections) { return Run(sections).lines; }
    /// The pages of a whole definition.
    platform::PrintedDocument Pages(std::string_view definition);
    /// The reason and line with which a definition's run ends, empty if it doesn't.
    std::string Fault(std::string_view sections);

    reports::ReportDef report;
};

} // namespace tests
