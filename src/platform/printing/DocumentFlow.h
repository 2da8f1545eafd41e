#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/printing/FlowSink.h"

namespace platform {

/// A flow in memory, which can be written as often as needed.
class DocumentFlow : public FlowSink {
  public:
    void BeginFlow(const DocumentInfo& info) override;
    void Paragraph(const PrintStyle& style, std::string_view text) override;
    void BeginTable(const PrintStyle& style, const PrintTable& table,
                    std::span<const Twips> widths) override;
    void TableRow(std::span<const std::string_view> cells) override;
    void EndTable() override;
    void Rule(const PrintStyle& style, std::string_view caption) override;
    void EndFlow() override;

    /// Writes everything that was recorded to another sink.
    void WriteTo(FlowSink& sink) const;

  private:
    struct Block {
        enum class Kind : std::uint8_t { Paragraph, Table, Rule };
        Kind kind;
        std::size_t style;
        std::size_t index; ///< of the text or the table
    };
    struct Table {
        PrintTable table;
        std::vector<Twips> widths;
        std::string text;
        std::vector<std::size_t> ends; ///< of each cell within the text
    };

    std::size_t StyleIndex(const PrintStyle& style);

    DocumentInfo info_;
    std::vector<PrintStyle> styles_;
    std::vector<std::string> texts_;
    std::vector<Table> tables_;
    std::vector<Block> blocks_;
};

} // namespace platform
