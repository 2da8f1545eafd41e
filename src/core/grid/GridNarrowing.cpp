#include "core/grid/GridModel.h"
#include "platform/qt/Text.h"

namespace core::grid {

namespace {

// Rows searched before user input is processed again: some hundredths of a second.
constexpr std::int32_t kRowsSearched = 20'000;

} // namespace

GridModel::GridModel(QObject* parent) : QAbstractTableModel(parent) {
    nextSlice_.setSingleShot(true);
    nextSlice_.setInterval(0);
    connect(&nextSlice_, &QTimer::timeout, this, &GridModel::SearchSlice);
    nextRead_.setInterval(0);
    connect(&nextRead_, &QTimer::timeout, this, &GridModel::ReadSlice);
}

void GridModel::Narrow(const QString& text, int firstColumn) {
    if (text == narrowed_) return;
    // A longer text can only match rows that the shorter one matched.
    const bool continues = !narrowed_.isEmpty() && text.startsWith(narrowed_) && !IsNarrowing() &&
                           std::ssize(shown_) <= kRowsSearched;
    beginResetModel();
    narrowed_ = text;
    search_.reset();
    nextSlice_.stop();
    nextSearched_ = 0;
    if (text.isEmpty()) {
        shown_.clear();
    } else if (continues) {
        const RowSearch search = MakeSearch(text, firstColumn);
        std::erase_if(shown_, [&](std::int32_t row) { return !search.Matches(*table_, row); });
    } else {
        search_.emplace(MakeSearch(text, firstColumn));
        shown_ = SearchOn();
    }
    endResetModel();
    if (!search_) Q_EMIT NarrowingEnded();
}

RowSearch GridModel::MakeSearch(const QString& text, int firstColumn) const {
    std::vector<ColumnFormat> formats;
    std::vector<platform::FieldType> types;
    for (const Column& column : columns_) {
        formats.push_back(column.format);
        types.push_back(column.type);
    }
    return {platform::qt::FromScreen(text), formats, types, static_cast<std::size_t>(firstColumn)};
}

/// Returns the matching rows of the next slice; ends the search after the last row.
std::vector<std::int32_t> GridModel::SearchOn() {
    std::vector<std::int32_t> found;
    const auto end = static_cast<std::int32_t>(
        std::min<std::int64_t>(rowCount_, std::int64_t{nextSearched_} + kRowsSearched));
    for (; nextSearched_ < end; ++nextSearched_) {
        if (search_->Matches(*table_, nextSearched_)) found.push_back(nextSearched_);
    }
    if (nextSearched_ < rowCount_) {
        nextSlice_.start();
    } else {
        search_.reset();
    }
    return found;
}

void GridModel::SearchSlice() {
    if (!search_) return;
    const std::vector<std::int32_t> found = SearchOn();
    if (!found.empty()) {
        const int before = rowCount();
        beginInsertRows({}, before, before + static_cast<int>(found.size()) - 1);
        shown_.insert(shown_.end(), found.begin(), found.end());
        endInsertRows();
    }
    if (!search_) Q_EMIT NarrowingEnded();
}

} // namespace core::grid
