#pragma once

#include <string_view>

#include "platform/printing/PageSink.h"
#include "platform/printing/TextMeasure.h"

namespace platform {

/// The font and colour of a line of text.
struct TextInk {
    TextMeasure measure;
    PrintColor color = kBlack;
    bool underline = false;
    int angle = 0; ///< tenths of a degree
};

/// The page under construction: everything is drawn on it, and it goes to the sink when it ends.
class PageMaker {
  public:
    PageMaker(FontMetrics& metrics, PageSink* sink) : metrics_(metrics), sink_(sink) {}

    /// Returns false if nobody wants pages: they are counted, but nothing needs to be drawn.
    bool HasSink() const { return sink_ != nullptr; }
    int Count() const { return count_; }

    void Begin(const DocumentInfo& info);
    void NewPage();
    /// Ends the last page, if there is one.
    void End();

    Twips Top() const { return info_.setup.marginTop; }
    Twips Bottom() const { return info_.setup.PageHeight() - info_.setup.marginBottom; }
    Twips Left() const { return info_.setup.marginLeft; }
    Twips Right() const { return info_.setup.PageWidth() - info_.setup.marginRight; }

    /// Draws a line of text whose box has its upper left corner at (x, top); turned text is turned
    /// about that corner.
    void Text(const TextInk& ink, Twips x, Twips top, const MeasuredLine& line);
    void Line(const PrintStyle& style, Twips x1, Twips y1, Twips x2, Twips y2);
    void Box(const PrintStyle& style, Twips x1, Twips y1, Twips x2, Twips y2);

  private:
    void BeginPage();
    void DrawFrame();
    void DrawFrameLine(const FrameLine& line, const TextInk& ink, Twips top);
    Twips DrawPart(std::string_view part, const TextInk& ink, TextAlign align, Twips top,
                   Twips width);

    FontMetrics& metrics_;
    PageSink* sink_;
    DocumentInfo info_;
    PrintedPage page_;
    int count_ = 0;
};

} // namespace platform
