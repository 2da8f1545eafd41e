#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/ByteSink.h"
#include "platform/printing/FlowSink.h"

namespace platform {

/// Writes a flow as one HTML file that needs no other: paragraphs and headings, tables that scroll
/// sideways on a narrow screen, separator lines. Bytes go out as they come.
class HtmlWriter : public FlowSink {
  public:
    explicit HtmlWriter(ByteSink& sink) : sink_(sink) {}

    void BeginFlow(const DocumentInfo& info) override;
    void Paragraph(const PrintStyle& style, std::string_view text) override;
    void BeginTable(const PrintStyle& style, const PrintTable& table,
                    std::span<const Twips> widths) override;
    void TableRow(std::span<const std::string_view> cells) override;
    void EndTable() override;
    void Rule(const PrintStyle& style, std::string_view caption) override;
    void EndFlow() override;

  private:
    struct Column {
        std::string start;        ///< "<td>" with the column's attributes
        std::string bracketStart; ///< the same for a text that ends in a bracket
    };

    void WriteHeader(const PrintTable& table);
    void FlushIfLarge();

    ByteSink& sink_;
    std::string out_;
    std::string footer_;
    Twips printWidth_ = 0;
    std::vector<Column> columns_;
};

} // namespace platform
