#include "platform/values/NumberFormat.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/values/Text.h"

namespace platform {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 9> kNamed = {{
    {"Currency", "$#,##0.00;($#,##0.00)"},
    {"Fixed", "0.00"},
    {"Standard", "#,##0.00"},
    {"Percent", "0.00%"},
    {"General Number", ""},
    {"Yes/No", "\"Yes\";\"Yes\";\"No\""},
    {"True/False", "\"True\";\"True\";\"False\""},
    {"Short Date", "mm/dd/yyyy"},
    {"Long Date", "dddd, mmmm dd, yyyy"},
}};

// Steps through a format, one character at a time; IsLiteral returns whether the current character
// is in quotes or after a backslash. The quotes and backslashes themselves are skipped.
class FormatReader {
  public:
    explicit FormatReader(std::string_view format) : format_(format) {}

    bool Next() {
        literal_ = false;
        for (; at_ < format_.size(); ++at_) {
            if (format_[at_] == '"') {
                quoted_ = !quoted_;
                continue;
            }
            literal_ = quoted_;
            if (!quoted_ && format_[at_] == '\\' && at_ + 1 < format_.size()) {
                literal_ = true;
                ++at_;
            }
            character_ = format_[at_++];
            return true;
        }
        return false;
    }

    char Character() const { return character_; }
    bool IsLiteral() const { return literal_; }
    bool Is(char c) const { return !literal_ && character_ == c; }
    bool IsPlaceholder() const { return Is('0') || Is('#'); }
    /// Returns the place where the next character begins.
    std::size_t Position() const { return at_; }

  private:
    std::string_view format_;
    std::size_t at_ = 0;
    char character_ = '\0';
    bool quoted_ = false;
    bool literal_ = false;
};

/// The requirements of a section, counted before anything is shown.
struct Layout {
    std::int64_t whole = 0;         // places before the point
    std::int64_t wholeShown = 0;    // of them from the first `0` on
    std::int64_t decimals = 0;      // places after the point
    std::int64_t decimalsShown = 0; // of them up to the last `0`
    std::int64_t percents = 0;
    bool grouped = false;
    bool point = false;
};

Layout Measure(std::string_view section) {
    Layout layout;
    for (FormatReader reader(section); reader.Next();) {
        if (reader.Is('.')) {
            layout.point = true;
        } else if (reader.Is('%')) {
            ++layout.percents;
        } else if (reader.Is(',')) {
            layout.grouped = layout.grouped || layout.whole > 0;
        } else if (reader.IsPlaceholder() && layout.point) {
            ++layout.decimals;
            if (reader.Is('0')) layout.decimalsShown = layout.decimals;
        } else if (reader.IsPlaceholder()) {
            ++layout.whole;
            if (reader.Is('0') || layout.wholeShown > 0) ++layout.wholeShown;
        }
    }
    return layout;
}

/// Writes one number by one section.
class SectionWriter {
  public:
    SectionWriter(const Digits& number, std::string_view section, const Layout& layout)
        : number_(number),
          section_(section),
          layout_(layout),
          wholeDigits_(std::max(number.pointAt, layout.wholeShown)) {}

    std::string Write() {
        std::int64_t place = layout_.whole;
        std::int64_t decimal = 0;
        bool behindPoint = false;
        for (FormatReader reader(section_); reader.Next();) {
            if (reader.Is('.') && !behindPoint) {
                // If there is no place before the point, the whole part is written at the point.
                if (layout_.whole == 0) PutWhole(wholeDigits_, 0);
                behindPoint = true;
                out_ += '.';
            } else if (reader.IsPlaceholder() && behindPoint) {
                PutDecimal(decimal++);
            } else if (reader.IsPlaceholder()) {
                // The first place takes all further digits if there are more digits than places.
                const bool first = place == layout_.whole;
                PutWhole(first ? std::max(wholeDigits_, place) : place, place - 1);
                --place;
            } else if (!reader.Is(',') || layout_.whole == 0) {
                out_ += reader.Character();
            }
        }
        return std::move(out_);
    }

  private:
    char Digit(std::int64_t index) const {
        const bool held = index >= 0 && index < static_cast<std::int64_t>(number_.digits.size());
        return held ? number_.digits[static_cast<std::size_t>(index)] : '0';
    }

    // Writes the whole digits of the places from `from` - 1 down to `to`; the place of the units is
    // 0.
    void PutWhole(std::int64_t from, std::int64_t to) {
        for (std::int64_t place = from - 1; place >= to; --place) {
            if (place >= wholeDigits_) continue;
            out_ += Digit(number_.pointAt - 1 - place);
            if (layout_.grouped && place > 0 && place % 3 == 0) out_ += ',';
        }
    }

    void PutDecimal(std::int64_t decimal) {
        const std::int64_t index = number_.pointAt + decimal;
        const bool matters = index < static_cast<std::int64_t>(number_.digits.size());
        if (matters || decimal < layout_.decimalsShown) out_ += Digit(index);
    }

    const Digits& number_;
    std::string_view section_;
    const Layout& layout_;
    std::int64_t wholeDigits_;
    std::string out_;
};

} // namespace

std::string_view FormatSection(std::string_view format, int index) {
    std::size_t start = 0;
    for (FormatReader reader(format); reader.Next();) {
        if (!reader.Is(';')) continue;
        if (index-- == 0) return format.substr(start, reader.Position() - 1 - start);
        start = reader.Position();
    }
    return index == 0 ? format.substr(start) : std::string_view();
}

std::string_view NamedFormat(std::string_view format) {
    const auto* const named = std::ranges::find_if(kNamed, [&](const auto& entry) {
        return entry.first.size() == format.size() && EqualIgnoringCase(entry.first, format);
    });
    return named != kNamed.end() ? named->second : format;
}

bool ShowsDigits(std::string_view section) {
    for (FormatReader reader(section); reader.Next();) {
        if (reader.IsPlaceholder()) return true;
    }
    return false;
}

std::string FormatDigits(const Digits& number, std::string_view format) {
    const std::string_view first = FormatSection(format, 0);
    const std::string_view own = number.digits.empty()
                                     ? FormatSection(format, 2)
                                     : FormatSection(format, number.negative ? 1 : 0);
    std::string_view section = own.empty() ? first : own;

    Digits shown = number;
    Layout layout = Measure(section);
    if (!shown.digits.empty()) shown.pointAt += 2 * layout.percents;
    if (layout.whole + layout.decimals > 0) RoundDigits(shown, layout.decimals);
    if (shown.digits.empty() && !number.digits.empty()) {
        const std::string_view zero = FormatSection(format, 2);
        section = zero.empty() ? first : zero;
        layout = Measure(section);
    }
    const bool ownSign = number.negative && !own.empty();
    std::string text = SectionWriter(shown, section, layout).Write();
    if (number.negative && !shown.digits.empty() && !ownSign) text.insert(text.begin(), '-');
    return text;
}

} // namespace platform
