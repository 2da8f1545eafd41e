#include "search/IndexUpdate.h"

#include <fmt/core.h>

#include "core/Rows.h"
#include "platform/values/Errors.h"

namespace search {

namespace {

// A step takes a few milliseconds, whether or not there is much to write.
constexpr int kRowsAtOnce = 2000;
constexpr std::size_t kWritesAtOnce = 300;

} // namespace

IndexUpdate::IndexUpdate(platform::TextIndex& index, platform::Connection& books)
    : index_(index), books_(books) {
    index_.Begin();
}

IndexUpdate::~IndexUpdate() {
    if (!isDone_) index_.RollBack();
}

bool IndexUpdate::Step() {
    if (isDone_) return true;
    if (source_ == Sources().size()) {
        index_.Commit();
        isDone_ = true;
        return true;
    }
    if (!rows_.IsOpen()) OpenSource();
    TakeRows();
    return false;
}

void IndexUpdate::OpenSource() {
    known_ = index_.Keys(FirstKey(source_), LastKey(source_));
    nextKnown_ = 0;
    lastKey_ = -1;
    taken_ = 0;
    try {
        rows_.Open(books_, Sources()[source_].sql, platform::CursorMode::ReadAsNeeded);
        reader_.emplace(source_, rows_);
    } catch (const platform::Error& failure) {
        faults_.push_back(
            fmt::format("{} can't be searched: {}", Sources()[source_].name, failure.what()));
    }
}

bool IndexUpdate::HasRow() {
    return reader_ && Reads([this] { return !rows_.Eof(); });
}

bool IndexUpdate::NextRow() {
    return Reads([this] {
        rows_.MoveNext();
        return true;
    });
}

template <class Work>
bool IndexUpdate::Reads(Work work) {
    try {
        return work();
    } catch (const platform::Error& failure) {
        faults_.push_back(
            fmt::format("{} can't all be searched: {}", Sources()[source_].name, failure.what()));
        return false;
    }
}

void IndexUpdate::TakeRows() {
    written_ = 0;
    for (int row = 0; row < kRowsAtOnce && written_ < kWritesAtOnce; ++row) {
        if (!HasRow()) return CloseSource();
        TakeRow();
        ++taken_;
        if (!NextRow()) return CloseSource();
    }
}

void IndexUpdate::TakeRow() {
    std::int32_t id = 0;
    try {
        id = reader_->Id();
    } catch (const platform::Error&) {
        return; // a record whose number can't be read can't be opened
    }
    const std::int64_t key = KeyOf(source_, id);
    if (id == 0 || key == lastKey_) return;
    lastKey_ = key;
    RemoveTo(key);
    const bool isKnown = nextKnown_ < known_.size() && known_[nextKnown_].key == key;
    if (isKnown && known_[nextKnown_++].mark == reader_->Mark()) return;
    index_.Put(reader_->Text());
    ++written_;
    ++changes_;
}

void IndexUpdate::RemoveTo(std::int64_t key) {
    for (; nextKnown_ < known_.size() && known_[nextKnown_].key < key; ++nextKnown_) {
        index_.Remove(known_[nextKnown_].key);
        ++written_;
        ++changes_;
    }
}

void IndexUpdate::CloseSource() {
    RemoveTo(LastKey(source_) + 1);
    reader_.reset();
    rows_.Close();
    ++source_;
}

int IndexUpdate::Percent() const {
    if (isDone_) return 100;
    // The last source is by far the longest.
    const std::size_t sources = Sources().size();
    if (source_ + 1 < sources) return static_cast<int>(source_);
    const auto first = static_cast<std::int64_t>(sources) - 1;
    if (source_ == sources || !rows_.IsOpen())
        return source_ == sources ? 100 : static_cast<int>(first);
    const std::int64_t rows = rows_.RecordCount();
    return static_cast<int>(first + (rows == 0 ? 0 : (100 - first) * taken_ / rows));
}

} // namespace search
