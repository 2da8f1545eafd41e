#include "platform/printing/PrintSurface.h"

#include <algorithm>
#include <utility>

#include "platform/printing/SurfaceState.h"
#include "platform/printing/Unicode.h"

namespace platform {

PrintSurface::PrintSurface(FontMetrics& metrics, PageSink* pages, FlowSink* flow)
    : metrics_(metrics), state_(std::make_unique<State>(metrics, pages, flow)) {}

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
    return state_->maker.Count();
}

void PrintSurface::StartDoc() {
    if (state_->flow) state_->flow->BeginFlow(state_->info);
    state_->maker.Begin(state_->info);
    locatedPage_ = 0;
    MoveTo(MarginLeft(), MarginTop());
}

void PrintSurface::EndDoc() {
    state_->maker.End();
    if (state_->flow) state_->flow->EndFlow();
}

void PrintSurface::NewPage() {
    state_->maker.NewPage();
    MoveTo(MarginLeft(), MarginTop());
}

void PrintSurface::Locate(Twips x, Twips y) {
    MoveTo(x, y);
    locatedPage_ = PageCount();
}

void PrintSurface::ApplyStyle(std::string_view name) {
    if (const PrintStyle* style = styles_.Find(name)) style_ = *style;
}

void PrintSurface::DrawLine(Twips x1, Twips y1, Twips x2, Twips y2) {
    state_->maker.Line(style_, x1, y1, x2, y2);
}

void PrintSurface::DrawRectangle(Twips x1, Twips y1, Twips x2, Twips y2) {
    state_->maker.Box(style_, x1, y1, x2, y2);
}

} // namespace platform
