#include <algorithm>

#include "core/grid/GridModel.h"

namespace core::grid {

namespace {

// Rows read before user input is processed again: some hundredths of a second.
constexpr std::int64_t kRowsRead = 10'000;

} // namespace

void GridModel::ReadOn() {
    if (rowCount_ <= platform::kFirstRowsRead) return;
    atHand_ = platform::kFirstRowsRead;
    nextRead_.start();
}

int GridModel::RowsAtHand() const {
    return static_cast<int>(narrowed_.isEmpty() ? atHand_ : std::ssize(shown_));
}

void GridModel::ReadSlice() {
    atHand_ = std::min(rowCount_, atHand_ + kRowsRead);
    // Reading the last of them reads the rows before it.
    if (atHand_ > 0) (void)table_->ValueAt(atHand_ - 1, 0);
    if (atHand_ < rowCount_) return;
    nextRead_.stop();
    Q_EMIT AllRead();
}

} // namespace core::grid
