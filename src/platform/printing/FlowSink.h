#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/printing/PageSetup.h"
#include "platform/printing/PrintTable.h"

namespace platform {

struct DocumentInfo {
    std::string name; ///< of the document, as the printer's queue and the file's title show it
    std::string author;
    std::string subject;
    std::string creator = "Vestrel";
    PageSetup setup;
    PageFrame frame;
};

/// Receives the document in reading order: paragraphs, tables and separator lines, without their
/// places on the page.
class FlowSink {
  public:
    virtual ~FlowSink() = default;
    virtual void BeginFlow(const DocumentInfo& info) = 0;
    /// Takes a paragraph. Its text may hold line ends; an empty text is an empty line.
    virtual void Paragraph(const PrintStyle& style, std::string_view text) = 0;
    /// Takes the start of a table. `widths` are the columns' widths in twips as laid out, already
    /// fitted to the page.
    virtual void BeginTable(const PrintStyle& style, const PrintTable& table,
                            std::span<const Twips> widths) = 0;
    /// Takes a row of the table. `cells` has as many cells as the table has columns.
    virtual void TableRow(std::span<const std::string_view> cells) = 0;
    virtual void EndTable() = 0;
    /// Takes a separator line; the caption is empty for a plain one.
    virtual void Rule(const PrintStyle& style, std::string_view caption) = 0;
    virtual void EndFlow() = 0;
};

} // namespace platform
