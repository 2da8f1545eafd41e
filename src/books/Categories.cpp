#include "books/Categories.h"

#include "books/TellLists.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/Recordset.h"

namespace books {

Category ParseCategory(std::string_view text) {
    const auto bar = text.find('|');
    if (bar == std::string_view::npos) return {std::string(text), Ien::Income};
    const std::string_view number = text.substr(bar + 1);
    const Ien ien = number == "2" ? Ien::Unclassified : number == "1" ? Ien::Expense : Ien::Income;
    return {std::string(text.substr(0, bar)), ien};
}

std::vector<std::string> CategoriesOf(Ien ien) {
    platform::Recordset rows = core::Read("SELECT Category FROM TransCategory WHERE IEN = ?",
                                          {static_cast<std::int16_t>(ien)});
    std::vector<std::string> texts;
    for (; !rows.Eof(); rows.MoveNext()) {
        if (!rows["Category"].IsNull()) texts.push_back(rows["Category"].AsText());
    }
    return texts;
}

void AddCategory(const Category& category) {
    core::Execute("INSERT INTO TransCategory (Category,IEN) VALUES (?,?)",
                  {category.text, static_cast<std::int16_t>(category.ien)});
    TellLists({core::kTransCategory});
}

void RemoveCategory(std::string_view text) {
    core::Execute("DELETE * FROM TransCategory WHERE Category = ?", {text});
    TellLists({core::kTransCategory});
}

} // namespace books
