#include <map>
#include <string>
#include <utility>
#include <variant>

#include "platform/registry/Registry.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

struct LessIgnoringCase {
    using Name = std::pair<std::string, std::string>;
    bool operator()(const Name& a, const Name& b) const {
        const int order = CompareIgnoringCase(a.first, b.first);
        return order < 0 || (order == 0 && CompareIgnoringCase(a.second, b.second) < 0);
    }
};

class MemoryRegistry : public Registry {
  public:
    std::optional<std::string> ReadText(std::string_view key, std::string_view name) override {
        return Read<std::string>(key, name);
    }
    std::optional<std::int32_t> ReadNumber(std::string_view key, std::string_view name) override {
        return Read<std::int32_t>(key, name);
    }
    bool WriteText(std::string_view key, std::string_view name, std::string_view value) override {
        values_.insert_or_assign({std::string(key), std::string(name)}, std::string(value));
        return true;
    }
    bool WriteNumber(std::string_view key, std::string_view name, std::int32_t value) override {
        values_.insert_or_assign({std::string(key), std::string(name)}, value);
        return true;
    }
    bool WriteTexts(std::span<const RegistryText> texts) override {
        for (const RegistryText& text : texts)
            WriteText(text.key, text.name, text.value);
        return true;
    }

  private:
    template <typename T>
    std::optional<T> Read(std::string_view key, std::string_view name) const {
        const auto found = values_.find({std::string(key), std::string(name)});
        if (found == values_.end()) return std::nullopt;
        const auto* value = std::get_if<T>(&found->second);
        return value != nullptr ? std::optional(*value) : std::nullopt;
    }

    std::map<std::pair<std::string, std::string>, std::variant<std::string, std::int32_t>,
             LessIgnoringCase>
        values_;
};

} // namespace

std::unique_ptr<Registry> MakeMemoryRegistry() {
    return std::make_unique<MemoryRegistry>();
}

} // namespace platform
