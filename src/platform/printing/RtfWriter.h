#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/ByteSink.h"
#include "platform/printing/FlowSink.h"

namespace platform {

/// Writes a flow as an RTF document for word processors: paragraphs, real tables, page size, header
/// and footer with the page's number as a field. The body waits in a spool until EndFlow, because
/// the fonts and colours it uses are listed before it.
class RtfWriter : public FlowSink {
  public:
    explicit RtfWriter(ByteSink& sink) : sink_(sink) {}

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
        std::string start; ///< the paragraph's and font's attributes of a cell
        bool alignCurrency = false;
    };
    /// The row that waits to be written.
    struct Row {
        std::string cells{}; ///< empty for no row
        bool isFirst = false;
        bool isHeader = false;
    };

    int FontIndex(const std::string& name);
    int ColorIndex(PrintColor color);
    std::string FontWords(const PrintStyle& style);
    std::string RowStart(bool isLast) const;
    void WriteRow(bool isLast);
    std::string FrameGroup(std::string_view word, const FrameLine& line);
    void WriteHead();
    void FlushIfLarge();

    ByteSink& sink_;
    Spool body_;
    std::string out_;
    DocumentInfo info_;
    std::vector<std::string> fonts_;
    std::vector<PrintColor> colors_;

    // The table that is being written.
    PrintTable table_;
    std::vector<Twips> widths_;
    std::vector<Column> columns_;
    Row row_;
    std::string innerStart_; ///< of rows between the first and the last
    int headerColor_ = 0;    ///< 0 for none
    double fontSize_ = 0;    ///< in points
    int currencyIndent_ = 0; ///< the room right of an amount without a bracket, in twips
};

} // namespace platform
