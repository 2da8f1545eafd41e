#include "platform/printing/PrintedDocument.h"

#include "platform/printing/PackPage.h"

namespace platform {

void PrintedDocument::Clear() {
    *this = PrintedDocument();
}

void PrintedDocument::BeginPages(const DocumentInfo& info) {
    info_ = info;
    pages_.clear();
    complete_ = false;
}

void PrintedDocument::AddPage(PrintedPage page) {
    pages_.push_back(PackPage(page));
}

PrintedPage PrintedDocument::Page(std::size_t index) const {
    return UnpackPage(pages_[index]);
}

void PrintedDocument::EndPages() {
    complete_ = true;
}

} // namespace platform
