#include "platform/printing/pdf/PdfWriter.h"

#include <fmt/core.h>

#include "platform/printing/pdf/PdfContent.h"
#include "platform/system/Clock.h"

namespace platform {

PdfWriter::PdfWriter(ByteSink& sink, const FontBook& fonts) : book_(fonts), pdf_(sink) {}
PdfWriter::~PdfWriter() = default;

void PdfWriter::BeginPages(const DocumentInfo& info) {
    info_ = info;
    content_ = std::make_unique<PdfContent>(book_, pdf_);
    pdf_.Begin();
    catalog_ = pdf_.Reserve();
    tree_ = pdf_.Reserve();
    resources_ = pdf_.Reserve();
}

void PdfWriter::AddPage(PrintedPage page) {
    const PdfObject content = pdf_.Reserve();
    pdf_.WriteStream(content, content_->Draw(page));
    pages_.push_back(pdf_.Reserve());
    pdf_.Write(pages_.back(),
               fmt::format("<</Type/Page/Parent {} 0 R/MediaBox[0 0 {:g} {:g}]/Resources {} 0 R"
                           "/Contents {} 0 R>>",
                           tree_, page.Width() / 20.0, page.Height() / 20.0, resources_, content));
}

void PdfWriter::EndPages() {
    std::string names;
    for (const auto& [index, font] : content_->Fonts()) {
        font.Write(pdf_);
        names += fmt::format("/F{} {} 0 R", index, font.Object());
    }
    pdf_.Write(resources_, "<</Font<<" + names + ">>>>");
    WritePageTree();
    pdf_.Write(catalog_, fmt::format("<</Type/Catalog/Pages {} 0 R/Lang(en)"
                                     "/ViewerPreferences<</DisplayDocTitle true>>>>",
                                     tree_));
    pdf_.End(catalog_, WriteInformation());
}

void PdfWriter::WritePageTree() {
    std::string tree = "<</Type/Pages/Kids[";
    for (const PdfObject page : pages_)
        tree += fmt::format("{} 0 R ", page);
    tree += fmt::format("]/Count {}>>", pages_.size());
    pdf_.Write(tree_, tree);
}

PdfObject PdfWriter::WriteInformation() {
    const Date today = Today();
    const PdfObject info = pdf_.Reserve();
    pdf_.Write(info, fmt::format("<</Title{}/Author{}/Subject{}/Creator{}/Producer{}"
                                 "/CreationDate(D:{:04}{:02}{:02})>>",
                                 PdfText(info_.name), PdfText(info_.author), PdfText(info_.subject),
                                 PdfText(info_.creator), PdfText("Vestrel"), today.Year(),
                                 today.Month(), today.Day()));
    return info;
}

} // namespace platform
