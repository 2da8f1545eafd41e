#include "shell/screens/PostedRows.h"

#include <array>

#include "platform/qt/Text.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace shell::screens {

using platform::qt::ToScreen;

namespace {

enum Column { Day, What, For, Amount };

constexpr std::array<const char*, 4> kCaptions = {
    QT_TRANSLATE_NOOP("PostedRows", "Date"), QT_TRANSLATE_NOOP("PostedRows", "Posted"),
    QT_TRANSLATE_NOOP("PostedRows", "For"), QT_TRANSLATE_NOOP("PostedRows", "Amount")};

} // namespace

int PostedRows::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    return static_cast<int>(digest_.Faults().size() + digest_.Rows().size());
}

int PostedRows::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kCaptions.size());
}

const DigestRow* PostedRows::PostedAt(int line) const {
    const auto faults = static_cast<int>(digest_.Faults().size());
    if (line < faults || line >= rowCount({})) return nullptr;
    return &digest_.Rows()[static_cast<std::size_t>(line - faults)];
}

QVariant PostedRows::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::TextAlignmentRole && index.column() == Amount) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    const DigestRow* const row = PostedAt(index.row());
    if (row == nullptr) {
        if (index.column() == What) return tr("Not updated");
        if (index.column() != For) return {};
        return ToScreen(digest_.Faults()[static_cast<std::size_t>(index.row())]);
    }
    switch (index.column()) {
        case Day:
            return ToScreen(row->date.ToText());
        case What:
            return ToScreen(platform::Trim(row->category));
        case For:
            return ToScreen(digest_.DescriptionOf(*row));
        case Amount:
            return ToScreen(platform::FormatMoney(row->amount));
        default:
            return {};
    }
}

QVariant PostedRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return tr(kCaptions.at(static_cast<std::size_t>(section)));
}

} // namespace shell::screens
