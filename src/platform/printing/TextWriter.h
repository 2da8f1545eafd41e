#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/ByteSink.h"
#include "platform/printing/FlowSink.h"

namespace platform {

/// Writes a flow as plain UTF-8 text to be read in a fixed-width font: paragraphs wrapped, tables
/// in columns, separator lines as rows of "-". Nothing is cut; a cell that is too long for its
/// column continues in the next line.
class TextWriter : public FlowSink {
  public:
    explicit TextWriter(ByteSink& sink) : sink_(sink) {}

    void BeginFlow(const DocumentInfo& info) override;
    void Paragraph(const PrintStyle& style, std::string_view text) override;
    void BeginTable(const PrintStyle& style, const PrintTable& table,
                    std::span<const Twips> widths) override;
    void TableRow(std::span<const std::string_view> cells) override;
    void EndTable() override;
    void Rule(const PrintStyle& style, std::string_view caption) override;
    void EndFlow() override;

  private:
    void WriteRow(std::span<const std::string_view> cells, bool header);
    void WriteLine(std::string line);
    std::size_t TableWidth() const;

    ByteSink& sink_;
    std::size_t width_ = 0; ///< of a line in characters
    FrameLine footer_;
    std::vector<TableColumn> columns_;
    std::vector<std::size_t> widths_; ///< of the columns in characters
};

} // namespace platform
