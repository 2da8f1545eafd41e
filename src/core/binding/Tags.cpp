#include "core/binding/Tags.h"

#include <QObject>
#include <QVariant>

#include "platform/qt/Text.h"
#include "platform/values/Text.h"

namespace core::binding {

namespace {

constexpr const char* kTagProperty = "tag";

} // namespace

std::string TagOf(const QObject& control) {
    return platform::qt::FromScreen(control.property(kTagProperty).toString());
}

void SetTag(QObject& control, std::string_view tag) {
    control.setProperty(kTagProperty, platform::qt::ToScreen(tag));
}

std::optional<Binding> ReadTag(std::string_view tag, std::string_view table) {
    if (tag.size() < 2 || kSigils.find(tag.front()) == std::string_view::npos) return std::nullopt;
    Binding binding{tag.front(), {}, std::string(tag.substr(1))};
    if (table.empty()) return binding;
    const std::size_t point = binding.field.find('.');
    if (point == std::string::npos) return std::nullopt;
    binding.table = binding.field.substr(0, point);
    binding.field.erase(0, point + 1);
    if (!platform::EqualIgnoringCase(binding.table, table)) return std::nullopt;
    return binding;
}

std::string FieldOfTag(std::string_view tag) {
    if (tag.size() < 2) return {};
    tag.remove_prefix(1);
    const std::size_t point = tag.find('.');
    if (point != std::string_view::npos) tag.remove_prefix(point + 1);
    return std::string(tag);
}

} // namespace core::binding
