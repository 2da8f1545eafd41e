#include "platform/printing/PrintedDocument.h"

#include <utility>

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
    page.Compact();
    pages_.push_back(std::move(page));
}

void PrintedDocument::EndPages() {
    complete_ = true;
}

} // namespace platform
