#include "mortgages/screens/AmortModel.h"

#include <QColor>
#include <QGuiApplication>
#include <QPalette>

#include "platform/qt/Text.h"

namespace mortgages::screens {

using platform::qt::ToScreen;

namespace {

constexpr QRgb kTint = 0xFFE2FEEB;
constexpr QRgb kTintOnDark = 0xFF24382B;

/// Returns the tint of every second row, dark in dark windows so that its text stays readable.
QColor Tint() {
    const bool isDark = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
    return {isDark ? kTintOnDark : kTint};
}

bool StandsLeft(const AmortColumn& column) {
    return column.format == AmortFormat::Day;
}

} // namespace

void AmortModel::Show(const clsMortgage& mortgage, const AmortView& view) {
    beginResetModel();
    grid_.reset();
    mortgage_ = mortgage;
    grid_ = mortgage_->ShowGrid(view);
    endResetModel();
}

int AmortModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !grid_ ? 0 : static_cast<int>(grid_->RowCount());
}

int AmortModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() || !grid_ ? 0 : static_cast<int>(grid_->Columns().size());
}

QVariant AmortModel::data(const QModelIndex& index, int role) const {
    if (!grid_ || !index.isValid()) return {};
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    switch (role) {
        case Qt::DisplayRole:
            return ToScreen(grid_->Text(row, column));
        case Qt::TextAlignmentRole:
            return StandsLeft(grid_->Columns()[column])
                       ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
                       : QVariant(Qt::AlignRight | Qt::AlignVCenter);
        case Qt::BackgroundRole:
            return AmortGrid::IsTinted(row) ? QVariant(Tint()) : QVariant();
        default:
            return {};
    }
}

QVariant AmortModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (!grid_ || orientation != Qt::Horizontal) return {};
    const AmortColumn& column = grid_->Columns()[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return ToScreen(column.caption);
    if (role == Qt::TextAlignmentRole)
        return QVariant((StandsLeft(column) ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    return {};
}

} // namespace mortgages::screens
