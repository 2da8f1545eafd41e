#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/Settings.h"

namespace core {

/// A member of a struct of settings, and how the registry keeps it under its name.
template <class Settings>
struct StoredMember {
    std::string_view name;
    void (*load)(std::string_view key, std::string_view name, Settings& settings);
    bool (*save)(std::string_view key, std::string_view name, const Settings& settings);
};

namespace detail {

template <class Settings, class Member>
Settings StructOf(Member Settings::*);

} // namespace detail

/// Describes a flag, a number or a text.
template <auto member>
constexpr auto Stored(std::string_view name) {
    using S = decltype(detail::StructOf(member));
    using T = std::remove_cvref_t<decltype(S().*member)>;
    if constexpr (std::same_as<T, bool>) {
        return StoredMember<S>{
            name, [](auto key, auto at, S& to) { to.*member = GetRegFlag(key, at, to.*member); },
            [](auto key, auto at, const S& from) { return SetRegFlag(key, at, from.*member); }};
    } else if constexpr (std::same_as<T, std::string>) {
        return StoredMember<S>{
            name, [](auto key, auto at, S& to) { to.*member = GetRegString(key, at, to.*member); },
            [](auto key, auto at, const S& from) { return SetRegString(key, at, from.*member); }};
    } else {
        static_assert(std::same_as<T, std::int32_t>);
        return StoredMember<S>{
            name, [](auto key, auto at, S& to) { to.*member = GetRegNumber(key, at, to.*member); },
            [](auto key, auto at, const S& from) { return SetRegNumber(key, at, from.*member); }};
    }
}

/// Describes an enum of the numbers 0 to `last`; another number isn't read.
template <auto member, auto last>
constexpr auto StoredChoice(std::string_view name) {
    using S = decltype(detail::StructOf(member));
    return StoredMember<S>{name,
                           [](auto key, auto at, S& to) {
                               const std::int32_t number = GetRegNumber(key, at, -1);
                               if (number >= 0 && number <= static_cast<std::int32_t>(last))
                                   to.*member = static_cast<decltype(last)>(number);
                           },
                           [](auto key, auto at, const S& from) {
                               return SetRegNumber(key, at,
                                                   static_cast<std::int32_t>(from.*member));
                           }};
}

/// Reads each member from below `key`; a member that isn't stored keeps its value.
template <class Settings, std::size_t count>
void LoadSettings(std::string_view key, const StoredMember<Settings> (&members)[count],
                  Settings& settings) {
    for (const auto& member : members)
        member.load(key, member.name, settings);
}

/// Writes each member below `key`; returns false if one can't be written.
template <class Settings, std::size_t count>
bool SaveSettings(std::string_view key, const StoredMember<Settings> (&members)[count],
                  const Settings& settings) {
    bool allWritten = true;
    for (const auto& member : members)
        allWritten = member.save(key, member.name, settings) && allWritten;
    return allWritten;
}

} // namespace core
