#include "core/grid/GridModel.h"

#include <QFont>
#include <algorithm>
#include <utility>

#include "core/RowsetTable.h"
#include "platform/qt/Text.h"

namespace core::grid {

namespace {

std::int64_t CellKey(std::int64_t row, int column) {
    return row * 4096 + column;
}

} // namespace

void GridModel::SetRows(platform::Recordset rows) {
    SetTable(std::make_unique<core::RowsetTable>(std::move(rows)));
}

void GridModel::SetTable(std::unique_ptr<core::Table> table) {
    beginResetModel();
    table_ = std::move(table);
    rowCount_ = table_ ? table_->RowCount() : 0;
    atHand_ = rowCount_;
    nextRead_.stop();
    columns_.clear();
    colors_.clear();
    narrowed_.clear();
    shown_.clear();
    search_.reset();
    nextSlice_.stop();
    if (table_) {
        for (const core::TableColumn& column : table_->Columns()) {
            columns_.push_back(
                {platform::qt::ToScreen(column.caption), column.type, column.format, {}});
        }
    }
    endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    return static_cast<int>(narrowed_.isEmpty() ? rowCount_ : std::ssize(shown_));
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    switch (role) {
        case Qt::DisplayRole:
            return CellText(index.row(), index.column());
        case Qt::TextAlignmentRole: {
            const bool right = columns_[static_cast<std::size_t>(index.column())].format.right;
            return QVariant(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft));
        }
        case Qt::BackgroundRole:
            if (const auto color = ColorOf(index)) return *color;
            if (const auto color = rowRule_ ? rowRule_(index.row()) : std::nullopt) return *color;
            return {};
        case Qt::ForegroundRole:
            // A coloured cell keeps its colour in a dark window, so its text colour must suit the
            // cell.
            if (const auto color = ColorOf(index)) {
                return QColor(color->lightness() < 128 ? Qt::white : Qt::black);
            }
            return {};
        default:
            return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    switch (role) {
        case Qt::DisplayRole:
            return Caption(section);
        case Qt::TextAlignmentRole: {
            // A caption is aligned like the cells below it.
            const bool right = columns_[static_cast<std::size_t>(section)].format.right;
            return QVariant(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft));
        }
        case Qt::FontRole: {
            QFont font;
            font.setBold(boldHeader_);
            return font;
        }
        default:
            return {};
    }
}

platform::Value GridModel::CellValue(int row, int column) const {
    return table_->ValueAt(Source(row), static_cast<std::size_t>(column));
}

QString GridModel::CellText(int row, int column) const {
    return SourceText(Source(row), static_cast<std::size_t>(column));
}

QString GridModel::Caption(int column) const {
    return columns_[static_cast<std::size_t>(column)].caption;
}

platform::FieldType GridModel::TypeOf(int column) const {
    return columns_[static_cast<std::size_t>(column)].type;
}

void GridModel::SetFormat(int column, ColumnFormat format) {
    if (column < 0 || column >= columnCount()) return;
    columns_[static_cast<std::size_t>(column)].format = std::move(format);
    if (rowCount() > 0) Q_EMIT dataChanged(index(0, column), index(rowCount() - 1, column));
}

void GridModel::SetColor(int column, int row, QColor color) {
    if (column < 0 || column >= columnCount() || row < 0 || row >= rowCount()) return;
    colors_[CellKey(Source(row), column)] = color;
    Q_EMIT dataChanged(index(row, column), index(row, column));
}

void GridModel::SetColorRule(int column, ColorRule rule) {
    if (column < 0 || column >= columnCount()) return;
    columns_[static_cast<std::size_t>(column)].color = std::move(rule);
    if (rowCount() > 0) Q_EMIT dataChanged(index(0, column), index(rowCount() - 1, column));
}

void GridModel::SetBoldHeader(bool bold) {
    boldHeader_ = bold;
    if (columnCount() > 0) Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

std::int64_t GridModel::Source(int row) const {
    return narrowed_.isEmpty() ? row : shown_[static_cast<std::size_t>(row)];
}

QString GridModel::SourceText(std::int64_t source, std::size_t column) const {
    return platform::qt::ToScreen(
        core::CellText(table_->ValueAt(source, column), columns_[column].format));
}

std::optional<QColor> GridModel::ColorOf(const QModelIndex& index) const {
    const auto found = colors_.find(CellKey(Source(index.row()), index.column()));
    if (found != colors_.end()) return found->second;
    const ColorRule& rule = columns_[static_cast<std::size_t>(index.column())].color;
    if (!rule) return std::nullopt;
    return rule(CellValue(index.row(), index.column()));
}

} // namespace core::grid
