#include "core/Lists.h"

#include <algorithm>
#include <string>

#include "core/Descriptions.h"
#include "core/ListStatements.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/Recordset.h"
#include "platform/values/Text.h"

namespace core {

namespace {

/// Returns the index of the first row that meets the condition; nothing if there is none.
template <typename Condition>
std::optional<std::size_t> FindRow(const ChoiceList& list, Condition condition) {
    const auto found = std::ranges::find_if(list.Rows(), condition);
    if (found == list.Rows().end()) return std::nullopt;
    return static_cast<std::size_t>(found - list.Rows().begin());
}

} // namespace

void FillList(RecordKind kind, ChoiceList& list, const FillOptions& options) {
    const std::string text = list.Text();
    const std::int32_t selectedId =
        options.selectedId == 0 ? GetSelectedId(list) : options.selectedId;
    const ListStatement statement = ListStatementOf(kind, options.parentId);

    list.Clear();
    if (options.addNone && !statement.noneRow.empty()) list.Add(statement.noneRow, 0);
    if (!statement.sql.empty()) {
        platform::Recordset rows = Read(statement.sql + " ORDER BY 1 ");
        for (; !rows.Eof(); rows.MoveNext()) {
            const std::int32_t id = rows["Id"].AsLong();
            const platform::Field name = rows["Description"];
            const bool lacksName = options.nameNulls && name.IsNull();
            list.Add(lacksName ? NameOfRecord(kind, id) : name.AsText(), id);
            if (id == selectedId) list.Select(list.Rows().size() - 1);
        }
    }
    if (!list.Selected()) list.Select(0);
    if (options.keepText) list.SetText(text);
}

void FillFromCommaList(ChoiceList& list, std::string_view text) {
    while (!text.empty()) {
        const auto piece = text.substr(0, text.find(','));
        if (!platform::Trim(piece).empty()) list.Add(piece, 0);
        text.remove_prefix(std::min(text.size(), piece.size() + 1));
    }
}

std::int32_t GetSelectedId(const ChoiceList& list) {
    return list.Selected() ? list.Rows()[*list.Selected()].id : 0;
}

void SelectById(ChoiceList& list, std::int32_t id, NoMatch otherwise) {
    const auto row = FindRow(list, [id](const Choice& choice) { return choice.id == id; });
    if (row) {
        list.Select(*row);
    } else if (otherwise.selectFirst) {
        list.Select(0);
    }
}

void SelectByText(ChoiceList& list, std::string_view text, NoMatch otherwise) {
    const auto row = FindRow(list, [text](const Choice& choice) {
        return platform::EqualIgnoringCase(choice.text, text);
    });
    if (row) {
        list.Select(*row);
        return;
    }
    if (otherwise.selectFirst) list.Select(0);
    if (otherwise.setText) list.SetText(text);
}

} // namespace core
