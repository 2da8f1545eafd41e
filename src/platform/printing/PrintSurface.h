#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/FlowSink.h"
#include "platform/printing/FontMetrics.h"
#include "platform/printing/PageSink.h"
#include "platform/printing/PrintStyle.h"
#include "platform/printing/PrintTable.h"

namespace platform {

/// The surface that reports are drawn on: a document with a current position, current attributes,
/// text that flows over pages, tables, lines and boxes.
///
/// Between StartDoc and EndDoc pages go to the page sink as soon as they are full, and the
/// paragraphs, tables and separator lines to the flow sink as they are printed. Either sink may be
/// null; without a page sink there is one endless page, and layout that only pages need is
/// skipped.
class PrintSurface {
  public:
    PrintSurface(FontMetrics& metrics, PageSink* pages, FlowSink* flow);
    ~PrintSurface();
    PrintSurface(const PrintSurface&) = delete;
    PrintSurface& operator=(const PrintSurface&) = delete;

    // Sets the page; call it before StartDoc. Margins that leave no room are made smaller.
    void SetUp(const PageSetup& setup);
    void SetFrame(PageFrame frame);
    void SetDocName(std::string name);
    /// Sets the author and the subject of the finished file.
    void SetInformation(std::string author, std::string subject);

    /// Begins the first page, at its upper left margin.
    void StartDoc();
    /// Ends the last page; a document always has one.
    void EndDoc();
    /// Returns the number of pages begun so far.
    int PageCount() const;

    // Page geometry.
    const PageSetup& Setup() const;
    Twips MarginLeft() const { return Setup().marginLeft; }
    Twips MarginTop() const { return Setup().marginTop; }
    Twips MarginRight() const { return Setup().marginRight; }
    Twips MarginBottom() const { return Setup().marginBottom; }
    Twips PageWidth() const { return Setup().PageWidth(); }
    Twips PageHeight() const { return Setup().PageHeight(); }
    Twips PrintWidth() const { return Setup().PrintWidth(); }
    Twips PrintHeight() const { return Setup().PrintHeight(); }

    // Styles and attributes.
    PrintStyles& Styles() { return styles_; }
    /// Makes a named style current. A name that wasn't added changes nothing.
    void ApplyStyle(std::string_view name);
    /// Returns the current attributes, to be read and set: `surface.Style().fontBold = true`.
    PrintStyle& Style() { return style_; }
    const PrintStyle& Style() const { return style_; }

    // Returns the current position in twips from the page's upper left corner.
    Twips CurrentX() const { return x_; }
    Twips CurrentY() const { return y_; }
    void SetCurrentX(Twips x) { x_ = x; }
    void SetCurrentY(Twips y) { y_ = y; }
    void MoveTo(Twips x, Twips y) {
        x_ = x;
        y_ = y;
    }

    /// Moves to a place that the page's author chose: from there on a captioned line stays on the
    /// page as long as it fits, even if the lines that follow it don't.
    void Locate(Twips x, Twips y);

    /// Returns the width of a text in the current font.
    Twips TextWidth(std::string_view text) const;
    /// Returns the height of all lines of a text; an empty text is one line high.
    Twips TextHeight(std::string_view text) const;

    /// Prints a paragraph and moves to the left margin below it. It starts at the current position
    /// (no further left than the margin) and wraps at the right margin, later lines under the first
    /// one; "\n" starts a new line. An empty text moves on by one line.
    void Text(std::string_view text);
    /// Draws one line at the current position, turned by textAngle, without wrapping or moving. It
    /// isn't part of the flow.
    void TextAt(std::string_view text);
    /// Prints a separator line across the printable width and moves below it. The caption is set
    /// into the line; "-" prints a line without a caption.
    void SepLine(std::string_view caption);
    /// Draws a line across the printable width at the current position without moving.
    void Rule();
    /// Ends the page and continues at the upper left margin of the next.
    void NewPage();

    // Draw shapes in page coordinates, with the current pen and, for rectangles, brush.
    void DrawLine(Twips x1, Twips y1, Twips x2, Twips y2);
    void DrawRectangle(Twips x1, Twips y1, Twips x2, Twips y2);

    // Tables: StartTable, one AddTable, attributes by Table(), EndTable, which prints it at the
    // left margin of the current line and moves below it. A header row repeats on every page.
    void StartTable();
    /// Adds a table of text: rows separated by ";", cells by "|". An empty header gives no header
    /// row.
    void AddTable(std::string_view format, std::string_view header, std::string_view body);
    /// Adds a table of cells, whose "|" and ";" are text; `rows` is read in EndTable.
    void AddTableArray(std::string_view format, std::vector<std::string> header,
                       std::unique_ptr<TableRows> rows);
    /// Returns the table that was added last, until EndTable.
    PrintTable& Table();
    void EndTable();

  private:
    struct State;

    bool Breaks(Twips height) const;
    void PrintLines(std::string_view clean);

    FontMetrics& metrics_;
    PrintStyles styles_;
    PrintStyle style_;
    Twips x_ = 0;
    Twips y_ = 0;
    int locatedPage_ = 0; ///< the page of the last Locate
    std::unique_ptr<State> state_;
};

} // namespace platform
