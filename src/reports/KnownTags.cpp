#include "reports/KnownTags.h"

#include <algorithm>

#include "core/SystemTags.h"
#include "platform/values/Text.h"
#include "reports/Tags.h"

namespace reports {

namespace {

/// Returns true for a text such as "RENT DUE", false for the text between the signs of "5% of 10%".
bool LooksLikeName(const std::string& text) {
    const auto isLetter = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
    };
    if (text.empty() || !isLetter(text.front()) || text.back() == ' ') return false;
    return std::ranges::all_of(
        text, [&](char c) { return isLetter(c) || c == ' ' || (c >= '0' && c <= '9'); });
}

} // namespace

KnownTags KnownTags::OfRun() {
    KnownTags tags;
    tags.Add("SELECTEDID", "0");
    tags.Add("SELECTEDYEAR", "2000");
    tags.Add("SELECTEDDESCRIPTION", "record");
    tags.Add("STARTDATE", "01/01/2000");
    tags.Add("ENDDATE", "12/31/2000");
    return tags;
}

KnownTags KnownTags::OfSection() {
    KnownTags tags = OfRun();
    tags.Add("LOOPID", "0");
    for (const core::SystemTag& tag : core::SystemTags())
        tags.Add(std::string(tag.name), tag.value());
    return tags;
}

void KnownTags::Add(const std::string& name, const std::string& sample) {
    samples_.try_emplace(platform::ToUpper(name), sample);
}

bool KnownTags::Has(const std::string& name) const {
    return samples_.contains(platform::ToUpper(name));
}

std::string KnownTags::Fill(std::string text) const {
    for (const auto& [name, sample] : samples_)
        ReplaceTag(text, "%" + name + "%", sample);
    return text;
}

std::set<std::string> KnownTags::Unfilled(const std::string& text) const {
    std::set<std::string> names;
    if (platform::ContainsIgnoringCase(text, " LIKE ")) return names;
    const std::string filled = Fill(text);
    for (auto at = filled.find('%'); at != std::string::npos; at = filled.find('%', at + 1)) {
        const auto end = filled.find('%', at + 1);
        if (end == std::string::npos) break;
        const std::string name = filled.substr(at + 1, end - at - 1);
        if (LooksLikeName(name)) names.insert(name);
    }
    return names;
}

} // namespace reports
