#include "core/PickLists.h"

#include "core/RegistryKeys.h"
#include "core/Settings.h"
#include "platform/values/Text.h"

namespace core {

namespace {

constexpr char kSeparator = '\x01';

/// Returns the field that a tag names; empty if it names none.
std::string_view FieldOf(std::string_view tag) {
    if (tag.size() < 2) return {};
    tag.remove_prefix(1);
    const auto dot = tag.find('.');
    return dot == std::string_view::npos ? tag : tag.substr(dot + 1);
}

} // namespace

void LoadPickList(ChoiceList& list, std::string_view tag) {
    const auto field = FieldOf(tag);
    if (field.empty()) return;
    const std::string items = GetRegString(kPickListsKey, field, "");
    std::string_view rest = items;
    while (!rest.empty()) {
        const auto end = rest.find(kSeparator);
        list.Add(rest.substr(0, end), 0);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
}

void SavePickList(const ChoiceList& list, std::string_view tag) {
    const auto text = platform::Trim(list.Text());
    const auto field = FieldOf(tag);
    if (text.empty() || list.Selected() || field.empty()) return;

    std::string items = GetRegString(kPickListsKey, field, "");
    if (platform::ContainsIgnoringCase(items, text)) return;
    if (!items.empty()) items += kSeparator;
    SetRegString(kPickListsKey, field, items.append(text));
}

} // namespace core
