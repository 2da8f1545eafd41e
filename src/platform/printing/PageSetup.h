#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "platform/printing/Lengths.h"
#include "platform/printing/PrintStyle.h"

namespace platform {

/// The numbers are stored with reports.
enum class PageOrientation : std::int16_t { Portrait = 0, Landscape = 1 };
enum class Paper : std::uint8_t { Letter, A4 };

/// Returns "Letter" or "A4", as in the setting of the paper.
std::string_view PaperName(Paper paper);

/// Returns Letter if the territory of a locale's name such as "en_US.UTF-8" uses it or the name has
/// no territory, otherwise A4.
Paper PaperOfLocale(std::string_view locale);

/// Returns the paper of this machine's locale (LC_ALL, LC_PAPER, LANG).
Paper DefaultPaper();

/// Returns the paper of a setting's text, whatever its case; DefaultPaper if the text names no
/// paper.
Paper PaperOfSetting(std::string_view text);

/// The page that a document is laid out for.
struct PageSetup {
    Paper paper = Paper::Letter;
    PageOrientation orientation = PageOrientation::Portrait;
    Twips marginLeft = kTwipsPerInch;
    Twips marginTop = kTwipsPerInch;
    Twips marginRight = kTwipsPerInch;
    Twips marginBottom = kTwipsPerInch;

    /// Return the size of the whole page as it is read, so that landscape pages are wider than
    /// high.
    Twips PageWidth() const;
    Twips PageHeight() const;
    /// Return the size of the page less its margins; WithSaneMargins cuts margins that leave less
    /// than an inch in proportion.
    Twips PrintWidth() const { return PageWidth() - marginLeft - marginRight; }
    Twips PrintHeight() const { return PageHeight() - marginTop - marginBottom; }

    /// Returns this setup with margins that are not negative and leave at least an inch each way.
    PageSetup WithSaneMargins() const;

    friend bool operator==(const PageSetup&, const PageSetup&) = default;
};

/// One line of three parts above or below every page; "%d" in a part is the number of the page.
struct FrameLine {
    FrameLine() = default;
    FrameLine(std::string leftPart, std::string centerPart, std::string rightPart)
        : left(std::move(leftPart)), center(std::move(centerPart)), right(std::move(rightPart)) {}
    /// Takes the three parts from a text in which "|" separates them.
    FrameLine(std::string_view text);
    FrameLine(const char* text) : FrameLine(std::string_view(text)) {}

    bool IsEmpty() const { return left.empty() && center.empty() && right.empty(); }

    std::string left;
    std::string center;
    std::string right;
};

struct PageFrame {
    FrameLine header{};
    FrameLine footer{};
    PrintStyle style{.fontName = "Arial", .fontSize = 10};
};

} // namespace platform
