#include "platform/printing/PrintSurface.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {

struct PrintSurface::State {
    PageSink* pages = nullptr;
    FlowSink* flow = nullptr;
    DocumentInfo info;
    PrintedPage page;
    int pageCount = 0;
    PrintTable table;
    std::unique_ptr<TableRows> rows;
};

PrintSurface::PrintSurface(FontMetrics& metrics, PageSink* pages, FlowSink* flow)
    : metrics_(metrics), state_(std::make_unique<State>()) {
    state_->pages = pages;
    state_->flow = flow;
}

PrintSurface::~PrintSurface() = default;

void PrintSurface::SetUp(const PageSetup& setup) {
    state_->info.setup = setup.WithSaneMargins();
}
void PrintSurface::SetFrame(PageFrame frame) {
    state_->info.frame = std::move(frame);
}
void PrintSurface::SetDocName(std::string name) {
    state_->info.name = std::move(name);
}

void PrintSurface::SetInformation(std::string author, std::string subject) {
    state_->info.author = std::move(author);
    state_->info.subject = std::move(subject);
}

const PageSetup& PrintSurface::Setup() const {
    return state_->info.setup;
}
int PrintSurface::PageCount() const {
    return state_->pageCount;
}

void PrintSurface::StartDoc() {
    if (state_->pages) state_->pages->BeginPages(state_->info);
    if (state_->flow) state_->flow->BeginFlow(state_->info);
    state_->page = PrintedPage(PageWidth(), PageHeight());
    state_->pageCount = 1;
    MoveTo(MarginLeft(), MarginTop());
}

void PrintSurface::EndDoc() {
    if (state_->pages) {
        state_->pages->AddPage(std::move(state_->page));
        state_->pages->EndPages();
    }
    if (state_->flow) state_->flow->EndFlow();
}

void PrintSurface::NewPage() {
    if (state_->pages) state_->pages->AddPage(std::move(state_->page));
    state_->page = PrintedPage(PageWidth(), PageHeight());
    ++state_->pageCount;
    MoveTo(MarginLeft(), MarginTop());
}

void PrintSurface::ApplyStyle(std::string_view name) {
    if (const PrintStyle* style = styles_.Find(name)) style_ = *style;
}

Twips PrintSurface::TextWidth(std::string_view text) const {
    const FaceId face =
        metrics_.Face(style_.fontName, style_.fontBold ? Weight::Bold : Weight::Regular,
                      style_.fontItalic ? Slant::Italic : Slant::Upright);
    return static_cast<Twips>(
        std::lround(metrics_.Width(face, text) * style_.fontSize * kTwipsPerPoint));
}

Twips PrintSurface::TextHeight(std::string_view text) const {
    const auto lines = 1 + std::ranges::count(text, '\n');
    return static_cast<Twips>(
        std::lround(1.2 * style_.fontSize * kTwipsPerPoint * static_cast<double>(lines)));
}

void PrintSurface::Text(std::string_view text) {
    TextAt(text);
    MoveTo(MarginLeft(), y_ + TextHeight(text));
}

void PrintSurface::TextAt(std::string_view text) {
    PageItem item;
    item.size = static_cast<float>(style_.fontSize);
    item.color = style_.textColor;
    item.x1 = std::max(x_, MarginLeft());
    item.y1 = y_;
    state_->page.AddText(item, text);
    if (state_->flow) state_->flow->Paragraph(style_, text);
}

void PrintSurface::SepLine(std::string_view caption) {
    Rule();
    if (state_->flow) state_->flow->Rule(style_, caption == "-" ? "" : caption);
    MoveTo(MarginLeft(), y_ + TextHeight("1234"));
}

void PrintSurface::Rule() {
    DrawLine(MarginLeft(), y_, PageWidth() - MarginRight(), y_);
}

void PrintSurface::DrawLine(Twips x1, Twips y1, Twips x2, Twips y2) {
    state_->page.AddShape({.kind = PageItem::Kind::Line,
                           .color = style_.penColor,
                           .x1 = x1,
                           .y1 = y1,
                           .x2 = x2,
                           .y2 = y2});
}

void PrintSurface::DrawRectangle(Twips x1, Twips y1, Twips x2, Twips y2) {
    state_->page.AddShape({.kind = PageItem::Kind::Box,
                           .color = style_.penColor,
                           .x1 = x1,
                           .y1 = y1,
                           .x2 = x2,
                           .y2 = y2});
}

void PrintSurface::StartTable() {
    state_->table = {};
}

void PrintSurface::AddTable(std::string_view format, std::string_view header,
                            std::string_view body) {
    auto head = ParseTableText(header);
    AddTableArray(format, head.empty() ? std::vector<std::string>() : std::move(head.front()),
                  std::make_unique<HeldRows>(ParseTableText(body)));
}

void PrintSurface::AddTableArray(std::string_view format, std::vector<std::string> header,
                                 std::unique_ptr<TableRows> rows) {
    state_->table = {.columns = ParseTableFormat(format), .header = {.cells = std::move(header)}};
    state_->table.rowCount = rows->Count();
    state_->rows = std::move(rows);
}

PrintTable& PrintSurface::Table() {
    return state_->table;
}

void PrintSurface::EndTable() {
    if (!state_->rows) return;
    std::vector<Twips> widths(state_->table.columns.size(), 1440);
    if (state_->flow) state_->flow->BeginTable(style_, state_->table, widths);
    while (const std::vector<std::string>* row = state_->rows->Next()) {
        std::vector<std::string_view> cells(row->begin(), row->end());
        cells.resize(widths.size());
        if (state_->flow) state_->flow->TableRow(cells);
        for (const std::string_view cell : cells)
            TextAt(cell);
    }
    if (state_->flow) state_->flow->EndTable();
    state_->rows.reset();
}

} // namespace platform
