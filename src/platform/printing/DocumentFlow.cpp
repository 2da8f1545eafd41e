#include "platform/printing/DocumentFlow.h"

#include <algorithm>

namespace platform {

std::size_t DocumentFlow::StyleIndex(const PrintStyle& style) {
    const auto found = std::ranges::find(styles_, style);
    if (found == styles_.end()) {
        styles_.push_back(style);
        return styles_.size() - 1;
    }
    return static_cast<std::size_t>(found - styles_.begin());
}

void DocumentFlow::BeginFlow(const DocumentInfo& info) {
    *this = DocumentFlow();
    info_ = info;
}

void DocumentFlow::Paragraph(const PrintStyle& style, std::string_view text) {
    blocks_.push_back({Block::Kind::Paragraph, StyleIndex(style), texts_.size()});
    texts_.emplace_back(text);
}

void DocumentFlow::BeginTable(const PrintStyle& style, const PrintTable& table,
                              std::span<const Twips> widths) {
    blocks_.push_back({Block::Kind::Table, StyleIndex(style), tables_.size()});
    tables_.push_back({table, {widths.begin(), widths.end()}, {}, {}});
}

void DocumentFlow::TableRow(std::span<const std::string_view> cells) {
    Table& table = tables_.back();
    for (const std::string_view cell : cells) {
        table.text += cell;
        table.ends.push_back(table.text.size());
    }
}

void DocumentFlow::EndTable() {}

void DocumentFlow::Rule(const PrintStyle& style, std::string_view caption) {
    blocks_.push_back({Block::Kind::Rule, StyleIndex(style), texts_.size()});
    texts_.emplace_back(caption);
}

void DocumentFlow::EndFlow() {}

void DocumentFlow::WriteTo(FlowSink& sink) const {
    sink.BeginFlow(info_);
    std::vector<std::string_view> cells;
    for (const Block& block : blocks_) {
        const PrintStyle& style = styles_[block.style];
        if (block.kind == Block::Kind::Paragraph) {
            sink.Paragraph(style, texts_[block.index]);
        } else if (block.kind == Block::Kind::Rule) {
            sink.Rule(style, texts_[block.index]);
        } else {
            const Table& table = tables_[block.index];
            sink.BeginTable(style, table.table, table.widths);
            std::size_t begin = 0;
            for (const std::size_t end : table.ends) {
                cells.push_back(std::string_view(table.text).substr(begin, end - begin));
                begin = end;
                if (cells.size() < table.table.columns.size()) continue;
                sink.TableRow(cells);
                cells.clear();
            }
            sink.EndTable();
        }
    }
    sink.EndFlow();
}

} // namespace platform
