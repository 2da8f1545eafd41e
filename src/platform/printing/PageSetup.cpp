#include "platform/printing/PageSetup.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "platform/values/Text.h"

namespace platform {

namespace {

struct PaperSize {
    Twips shortSide;
    Twips longSide;
};

PaperSize SizeOf(Paper paper) {
    return paper == Paper::A4 ? PaperSize{11'906, 16'838} : PaperSize{12'240, 15'840};
}

/// Cuts two opposite margins in proportion until they leave an inch of `length`.
void Fit(Twips& first, Twips& second, Twips length) {
    first = std::max(first, 0);
    second = std::max(second, 0);
    const std::int64_t sum = std::int64_t{first} + second;
    const std::int64_t most = length - kTwipsPerInch;
    if (sum <= most) return;
    first = static_cast<Twips>(first * most / sum);
    second = static_cast<Twips>(most) - first;
}

} // namespace

std::string_view PaperName(Paper paper) {
    return paper == Paper::A4 ? "A4" : "Letter";
}

Paper PaperOfLocale(std::string_view locale) {
    static constexpr std::array<std::string_view, 14> kLetter = {
        "US", "CA", "MX", "PH", "CL", "CO", "CR", "GT", "NI", "PA", "PR", "SV", "VE", "DO"};
    const auto mark = locale.find('_');
    if (mark == std::string_view::npos) return Paper::Letter;
    const auto territory = locale.substr(mark + 1, 2);
    return std::ranges::find(kLetter, territory) != kLetter.end() ? Paper::Letter : Paper::A4;
}

Paper DefaultPaper() {
    for (const char* name : {"LC_ALL", "LC_PAPER", "LANG"}) {
        const char* value = std::getenv(name);
        if (value && *value) return PaperOfLocale(value);
    }
    return Paper::Letter;
}

Paper PaperOfSetting(std::string_view text) {
    for (const Paper paper : {Paper::Letter, Paper::A4}) {
        if (EqualIgnoringCase(Trim(text), PaperName(paper))) return paper;
    }
    return DefaultPaper();
}

Twips PageSetup::PageWidth() const {
    const PaperSize size = SizeOf(paper);
    return orientation == PageOrientation::Landscape ? size.longSide : size.shortSide;
}

Twips PageSetup::PageHeight() const {
    const PaperSize size = SizeOf(paper);
    return orientation == PageOrientation::Landscape ? size.shortSide : size.longSide;
}

FrameLine::FrameLine(std::string_view text) {
    const auto part = [&text] {
        const auto end = text.find('|');
        std::string taken(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        return taken;
    };
    left = part();
    center = part();
    right = part();
}

PageSetup PageSetup::WithSaneMargins() const {
    PageSetup sane = *this;
    Fit(sane.marginLeft, sane.marginRight, PageWidth());
    Fit(sane.marginTop, sane.marginBottom, PageHeight());
    return sane;
}

} // namespace platform
