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
/// The surnames one after the other, over and over: so that a few people have varied ones.
std::string_view SampleSurname(std::size_t index);
std::string_view SampleGivenName(SampleDice& dice);
/// "1248 Alder Street".
std::string SampleAddress(SampleDice& dice);
/// One in the street of this number.
std::string SampleAddress(SampleDice& dice, std::size_t street);
/// A number of those that are set aside for stories: "(541) 555-0142".
std::string SamplePhone(SampleDice& dice, int areaCode);
/// "ann.obrien@mail.example": the names in lower case, without what isn't a plain letter.
std::string SampleEmail(std::string_view givenName, std::string_view surname);
/// `count` digits.
std::string SampleDigits(SampleDice& dice, int count);

} // namespace store
