#include "support/screens/ColorChecks.h"

#include <QAbstractItemView>
#include <QBrush>
#include <QColor>
#include <QHeaderView>
#include <algorithm>
#include <map>

#include "platform/qt/Text.h"

namespace support {

namespace {

using platform::qt::FromScreen;

constexpr int kRowsLookedAt = 300;

/// The colour that a cell has by itself; empty if it has the list's.
std::string ColorOf(const QModelIndex& cell) {
    for (const int role : {Qt::BackgroundRole, Qt::ForegroundRole}) {
        const QVariant own = cell.data(role);
        if (!own.isValid()) continue;
        const QColor color =
            own.canConvert<QBrush>() ? own.value<QBrush>().color() : own.value<QColor>();
        return FromScreen(color.name());
    }
    return {};
}

bool IsTintedWhole(const QAbstractItemModel& model, int row) {
    const std::string first = ColorOf(model.index(row, 0));
    if (first.empty()) return false;
    for (int column = 1; column < model.columnCount(); ++column)
        if (ColorOf(model.index(row, column)) != first) return false;
    return model.columnCount() > 1;
}

void LookAtList(const QAbstractItemView& list, std::vector<std::string>& faults) {
    const QAbstractItemModel& model = *list.model();
    std::map<std::pair<int, std::string>, std::string> colors; // of a text in a column
    for (int row = 0; row < std::min(model.rowCount(), kRowsLookedAt); ++row) {
        if (IsTintedWhole(model, row)) continue;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex cell = model.index(row, column);
            const std::string text = FromScreen(cell.data(Qt::DisplayRole).toString().trimmed());
            const std::string color = ColorOf(cell);
            const std::string name = FromScreen(list.objectName()) + " row " + std::to_string(row) +
                                     " column " + std::to_string(column);
            if (!color.empty() && text.empty() && !cell.data(Qt::DecorationRole).isValid())
                faults.push_back(name + " has a colour and no word");
            const auto [seen, isNew] = colors.try_emplace({column, text}, color);
            if (!isNew && seen->second != color)
                faults.push_back(name + ": \"" + text + "\" has two colours");
        }
    }
}

} // namespace

std::vector<std::string> ColorFaults(const QWidget& window) {
    std::vector<std::string> faults;
    for (const auto* const list : window.findChildren<QAbstractItemView*>())
        if (list->model() && list->isVisible() && !qobject_cast<const QHeaderView*>(list))
            LookAtList(*list, faults);
    return faults;
}

} // namespace support
