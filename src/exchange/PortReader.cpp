// Reading of lines: where each ends, and its items.

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>

#include "exchange/Letters.h"
#include "exchange/PortFile.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace exchange {

namespace {

constexpr std::size_t kPieceSize = 1 << 20;
// None of our records is that long; in a foreign file an unclosed quote turns the rest of the file
// into one line.
constexpr std::size_t kLongestLine = 64 << 20;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void FailToRead(const std::filesystem::path& file, int reason) {
    throw platform::Error("Can't read " + file.string() + ": " +
                          std::generic_category().message(reason) + ".");
}

struct MarkerWord {
    std::string_view word;
    std::string_view end;
    PortMarker marker;
};

constexpr std::array<MarkerWord, 3> kMarkers = {{{"Record", "/Record", PortMarker::Record},
                                                 {"Fields", "/Fields", PortMarker::Fields},
                                                 {"Table", "/Table", PortMarker::Table}}};

void SkipBlanks(std::string_view& rest) {
    while (!rest.empty() && (rest.front() == ' ' || rest.front() == '\t'))
        rest.remove_prefix(1);
}

} // namespace

PortReader::PortReader(const std::filesystem::path& file, Letters letters)
    : descriptor_(open(file.c_str(), O_RDONLY | O_CLOEXEC)), file_(file), letters_(letters) {
    if (descriptor_ < 0) FailToRead(file, errno);
    size_ = lseek(descriptor_, 0, SEEK_END);
    lseek(descriptor_, 0, SEEK_SET);
    try {
        while (!atEnd_ && buffer_.size() < kByteOrderMark.size())
            Fill();
    } catch (...) {
        close(descriptor_);
        throw;
    }
    if (buffer_.starts_with(kByteOrderMark)) begin_ = kByteOrderMark.size();
}

PortReader::~PortReader() {
    close(descriptor_);
}

bool PortReader::IsUtf16() const {
    return buffer_.starts_with("\xFF\xFE") || buffer_.starts_with("\xFE\xFF");
}

/// Reads more of the file; returns false at its end.
bool PortReader::Fill() {
    if (atEnd_) return false;
    buffer_.erase(0, begin_);
    begin_ = 0;
    const std::size_t before = buffer_.size();
    buffer_.resize(before + kPieceSize);
    ssize_t got = -1;
    do {
        got = read(descriptor_, buffer_.data() + before, kPieceSize);
    } while (got < 0 && errno == EINTR);
    buffer_.resize(before + static_cast<std::size_t>(got < 0 ? 0 : got));
    if (got < 0) FailToRead(file_, errno);
    atEnd_ = got == 0;
    return !atEnd_;
}

/// Finds the end of the line that begins here: the first line end outside quotes. A quote inside a
/// string is doubled, so counting the quotes is enough. Throws an Error if the line is too long.
bool PortReader::FindLine(std::size_t& end) {
    const auto find = [this](char c, std::size_t from, std::size_t to) {
        const void* const found = std::memchr(buffer_.data() + from, c, to - from);
        if (found == nullptr) return to;
        return static_cast<std::size_t>(static_cast<const char*>(found) - buffer_.data());
    };
    bool quoted = false;
    std::size_t at = begin_;
    std::size_t lineEnd = 0; // the first one after `at`, as far as it is known
    for (;;) {
        if (!quoted && lineEnd <= at) lineEnd = find('\n', at, buffer_.size());
        const std::size_t quote = find('"', at, quoted ? buffer_.size() : lineEnd);
        if (!quoted && quote == lineEnd && lineEnd < buffer_.size()) {
            end = lineEnd;
            return true;
        }
        if (quote < buffer_.size()) {
            quoted = !quoted;
            at = quote + 1;
            continue;
        }
        const std::size_t scanned = buffer_.size() - begin_;
        if (scanned > kLongestLine) {
            number_ = nextNumber_;
            throw platform::Error(
                "the line is longer than 64 MB; the closing quote of a text may be missing.");
        }
        if (!Fill()) {
            end = buffer_.size();
            return end > begin_;
        }
        at = begin_ + scanned;
        lineEnd = 0;
    }
}

bool PortReader::NextLine() {
    std::size_t end = 0;
    if (!FindLine(end)) return false;
    std::string_view line(buffer_.data() + begin_, end - begin_);
    number_ = nextNumber_;
    nextNumber_ += std::count(line.begin(), line.end(), '\n') + 1;
    consumed_ += static_cast<std::int64_t>(line.size()) + 1;
    if (isUtf8_ && !IsUtf8Text(line)) isUtf8_ = false;
    if (line.ends_with('\r')) line.remove_suffix(1);
    Split(line);
    begin_ = std::min(end + 1, buffer_.size());
    return true;
}

std::string_view PortReader::Keep(std::string text) {
    if (keptCount_ == kept_.size()) kept_.emplace_back();
    return kept_[keptCount_++] = std::move(text);
}

/// Returns the text of a quoted item whose opening quote has been read; `rest` continues after the
/// closing one.
std::string_view PortReader::TakeQuoted(std::string_view& rest) {
    const std::size_t quote = rest.find('"');
    if (quote == std::string_view::npos) {
        isWhole_ = false; // the file was cut inside a text
        return std::exchange(rest, {});
    }
    if (!rest.substr(quote).starts_with("\"\"")) {
        const std::string_view text = rest.substr(0, quote);
        rest.remove_prefix(quote + 1);
        return text;
    }
    std::string text;
    for (;;) {
        const std::size_t next = rest.find('"');
        if (next == std::string_view::npos) {
            isWhole_ = false;
            rest = {};
            break;
        }
        text.append(rest, 0, next);
        rest.remove_prefix(next + 1);
        if (!rest.starts_with('"')) break;
        text += '"';
        rest.remove_prefix(1);
    }
    return Keep(std::move(text));
}

void PortReader::Split(std::string_view line) {
    items_.clear();
    keptCount_ = 0;
    isWhole_ = true;
    std::string_view rest = line;
    for (bool more = true; more;) {
        SkipBlanks(rest);
        PortItem item;
        if (rest.starts_with('"')) {
            rest.remove_prefix(1);
            item = {TakeQuoted(rest), true};
            SkipBlanks(rest);
            if (!rest.empty() && rest.front() != ',') isWhole_ = false;
        }
        const std::size_t comma = std::min(rest.find(','), rest.size());
        if (!item.quoted) item.text = platform::Trim(rest.substr(0, comma));
        more = comma < rest.size();
        rest.remove_prefix(more ? comma + 1 : rest.size());
        if (letters_ == Letters::Latin1 && !IsAscii(item.text)) {
            item.text = Keep(FromLatin1(item.text));
        }
        items_.push_back(item);
    }
    // Spreadsheets pad short lines with empty items, some of them quoted.
    while (!items_.empty() && items_.back().text.empty())
        items_.pop_back();
    marker_ = PortMarker::None;
    if (items_.empty()) return;
    for (const MarkerWord& known : kMarkers) {
        if (!platform::EqualIgnoringCase(items_.front().text, known.word)) continue;
        marker_ = known.marker;
        const bool isEnded =
            items_.size() > 1 && platform::EqualIgnoringCase(items_.back().text, known.end);
        if (isEnded) items_.pop_back();
        isWhole_ = isWhole_ && isEnded;
        items_.erase(items_.begin());
        return;
    }
}

} // namespace exchange
