#include "core/ChoiceList.h"

namespace core {

void ChoiceList::Add(std::string_view text, std::int32_t id) {
    rows_.push_back({std::string(text), id});
}

void ChoiceList::Clear() {
    rows_.clear();
    selected_.reset();
    text_.clear();
}

void ChoiceList::Select(std::size_t row) {
    if (row >= rows_.size()) return;
    selected_ = row;
    text_ = rows_[row].text;
}

void ChoiceList::SetText(std::string_view text) {
    text_ = text;
    if (selected_ && rows_[*selected_].text != text_) selected_.reset();
}

} // namespace core
