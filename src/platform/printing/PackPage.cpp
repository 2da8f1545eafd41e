#include "platform/printing/PackPage.h"

#include <array>
#include <bit>
#include <cstdint>

namespace platform {

namespace {

/// The numbers of an item, except the place of its text, which follows from the texts before it.
using Numbers = std::array<std::int64_t, 13>;

Numbers NumbersOf(const PageItem& item) {
    return {static_cast<int>(item.kind), item.underline, item.filled, item.face, item.angle,
            item.pen, std::bit_cast<std::int32_t>(item.size), item.color, item.fill, item.x1,
            item.y1,
            // Relative to the start of the item: in one line of a table, most of these are the
            // same.
            item.x2 - item.x1, item.y2 - item.y1};
}

PageItem ItemOf(const Numbers& numbers) {
    PageItem item;
    item.kind = static_cast<PageItem::Kind>(numbers[0]);
    item.underline = numbers[1] != 0;
    item.filled = numbers[2] != 0;
    item.face = static_cast<FaceId>(numbers[3]);
    item.angle = static_cast<std::int16_t>(numbers[4]);
    item.pen = static_cast<std::uint16_t>(numbers[5]);
    item.size = std::bit_cast<float>(static_cast<std::int32_t>(numbers[6]));
    item.color = static_cast<PrintColor>(numbers[7]);
    item.fill = static_cast<PrintColor>(numbers[8]);
    item.x1 = static_cast<Twips>(numbers[9]);
    item.y1 = static_cast<Twips>(numbers[10]);
    item.x2 = static_cast<Twips>(numbers[9] + numbers[11]);
    item.y2 = static_cast<Twips>(numbers[10] + numbers[12]);
    return item;
}

void Put(std::string& out, std::uint64_t number) {
    for (; number >= 0x80U; number >>= 7U)
        out += static_cast<char>(number | 0x80U);
    out += static_cast<char>(number);
}

/// Appends a number; small numbers of either sign take one byte.
void PutSigned(std::string& out, std::int64_t number) {
    Put(out, static_cast<std::uint64_t>(number) << 1U ^ static_cast<std::uint64_t>(number >> 63));
}

class Reader {
  public:
    explicit Reader(std::string_view packed) : packed_(packed) {}

    bool AtEnd() const { return at_ >= packed_.size(); }
    std::uint64_t Get() {
        std::uint64_t number = 0;
        for (unsigned shift = 0; !AtEnd(); shift += 7) {
            const auto byte = static_cast<unsigned char>(packed_[at_++]);
            number |= std::uint64_t{byte & 0x7FU} << shift;
            if (byte < 0x80) break;
        }
        return number;
    }
    std::int64_t GetSigned() {
        const std::uint64_t number = Get();
        return static_cast<std::int64_t>(number >> 1U) ^ -static_cast<std::int64_t>(number & 1U);
    }
    std::string_view Text(std::size_t length) {
        const std::string_view text = packed_.substr(at_, length);
        at_ += length;
        return text;
    }

  private:
    std::string_view packed_;
    std::size_t at_ = 0;
};

} // namespace

std::string PackPage(const PrintedPage& page) {
    std::string out;
    PutSigned(out, page.Width());
    PutSigned(out, page.Height());
    Numbers last{};
    for (const PageItem& item : page.Items()) {
        const Numbers numbers = NumbersOf(item);
        std::uint64_t changed = 0;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            if (numbers[i] != last[i]) changed |= std::uint64_t{1} << i;
        }
        // The bits for places change most often, so they come first: the number is then short.
        Put(out, changed >> 9U | (changed & 0x1FFU) << 4U);
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            if (numbers[i] != last[i]) PutSigned(out, numbers[i] - last[i]);
        }
        last = numbers;
        if (item.kind != PageItem::Kind::Text) continue;
        Put(out, item.textLength);
        out += page.TextOf(item);
    }
    out.shrink_to_fit();
    return out;
}

PrintedPage UnpackPage(std::string_view packed) {
    Reader in(packed);
    const auto width = static_cast<Twips>(in.GetSigned());
    const auto height = static_cast<Twips>(in.GetSigned());
    PrintedPage page(width, height);
    Numbers numbers{};
    while (!in.AtEnd()) {
        const std::uint64_t bits = in.Get();
        const std::uint64_t changed = (bits & 0xFU) << 9U | bits >> 4U;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            if (changed >> i & 1U) numbers[i] += in.GetSigned();
        }
        const PageItem item = ItemOf(numbers);
        if (item.kind == PageItem::Kind::Text) {
            page.AddText(item, in.Text(in.Get()));
        } else {
            page.AddShape(item);
        }
    }
    return page;
}

} // namespace platform
