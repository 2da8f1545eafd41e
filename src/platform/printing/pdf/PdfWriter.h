#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/ByteSink.h"
#include "platform/printing/PageSink.h"
#include "platform/printing/fonts/FontBook.h"
#include "platform/printing/pdf/PdfFile.h"
#include "platform/printing/pdf/PdfFont.h"

namespace platform {

class PdfContent;

/// Writes pages as a PDF file, each as soon as it is finished. Fonts are embedded, text can be
/// searched and copied. The faces of the pages are those of `fonts`.
class PdfWriter : public PageSink {
  public:
    PdfWriter(ByteSink& sink, const FontBook& fonts);
    ~PdfWriter() override;

    void BeginPages(const DocumentInfo& info) override;
    void AddPage(PrintedPage page) override;
    void EndPages() override;

  private:
    void WritePageTree();
    PdfObject WriteInformation();

    const FontBook& book_;
    PdfFile pdf_;
    DocumentInfo info_;
    PdfObject catalog_ = 0;
    PdfObject tree_ = 0;
    PdfObject resources_ = 0;
    std::vector<PdfObject> pages_;
    std::unique_ptr<PdfContent> content_;
};

} // namespace platform
