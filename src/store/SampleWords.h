#pragma once

#include <span>
#include <string>
#include <string_view>

#include "store/SampleDice.h"

namespace store {

/// A town where the sample owns property.
struct SampleTown {
    std::string_view city;
    std::string_view county;
    std::string_view state;
    std::string_view zip;
    int areaCode;
};

std::span<const SampleTown> SampleTowns();

std::string_view SampleSurname(SampleDice& dice);
/// Returns the surname for an index; after the last one they begin again, so that a few tenants
/// have different ones.
std::string_view SampleSurname(std::size_t index);
std::string_view SampleGivenName(SampleDice& dice);
/// Returns an address such as "1248 Alder Street".
std::string SampleAddress(SampleDice& dice);
/// Returns an address in the street of this number.
std::string SampleAddress(SampleDice& dice, std::size_t street);
/// Returns a phone number of those that are reserved for fiction: "(541) 555-0142".
std::string SamplePhone(SampleDice& dice, int areaCode);
/// Returns an e-mail address such as "ann.obrien@mail.example": the names in lower case, without
/// anything but plain letters.
std::string SampleEmail(std::string_view givenName, std::string_view surname);
/// Returns `count` digits.
std::string SampleDigits(SampleDice& dice, int count);

} // namespace store
