#include "store/SampleWords.h"

#include <array>

#include <fmt/core.h>

namespace store {

namespace {

constexpr SampleTown kTowns[] = {
    {"Eugene", "Lane", "OR", "97401", 541},
    {"Corvallis", "Benton", "OR", "97330", 541},
    {"Portland", "Multnomah", "OR", "97202", 503},
    {"Bellingham", "Whatcom", "WA", "98225", 360},
    {"Tacoma", "Pierce", "WA", "98405", 253},
    {"Coeur d'Alene", "Kootenai", "ID", "83814", 208},
    {"Boise", "Ada", "ID", "83702", 208},
    {"Chico", "Butte", "CA", "95926", 530},
    {"Fort Collins", "Larimer", "CO", "80521", 970},
    {"Duluth", "Saint Louis", "MN", "55802", 218},
    {"Ann Arbor", "Washtenaw", "MI", "48104", 734},
    {"Columbus", "Franklin", "OH", "43215", 614},
    {"Northampton", "Hampshire", "MA", "01060", 413},
    {"Burlington", "Chittenden", "VT", "05401", 802},
};

constexpr std::string_view kSurnames[] = {
    "O'Brien",
    "Okafor",
    "Lindqvist",
    "Hernández",
    "Whitaker",
    "Nakamura",
    "Castañeda",
    "Fitzgerald",
    "Van der Meulen-Featherstonehaugh",
    "Kowalczyk",
    "Abernathy",
    "Nguyễn",
    "Brandt",
    "D'Amico",
    "Petrov",
    "Yazzie",
    "Müller",
    "Haddad",
    "Silva",
    "Oyelaran",
    "Chen",
    "McAllister",
    "Rasmussen",
    "Dubois",
    "Patel",
    "Washington",
    "Park",
    "Lundgren",
    "Vasquez",
    "Barnett",
    "Østergaard",
    "Ferreira",
    "Kim",
    "Goldberg",
    "Thornton",
    "Ivanova",
    "Begay",
    "Mbeki",
    "Sorensen",
    "Holloway",
    "Montgomery-Castellanos",
    "Zielinski",
    "Ortega",
    "Tanaka",
    "Ellis",
    "Rahman",
    "Cho",
    "Baptiste",
    "Novak",
    "Reyes",
};

constexpr std::string_view kGivenNames[] = {
    "Maria",   "James",  "Aiko",    "Daniel",
    "Ngozi",   "Erik",   "Lucía",   "Thomas",
    "Priya",   "Samuel", "Hannah",  "José",
    "Beatrix", "Omar",   "Ruth",    "Wei",
    "Grace",   "Victor", "Zoë",     "Marcus",
    "Elena",   "Peter",  "Fatima",  "Noah",
    "Ingrid",  "Andre",  "Sophie",  "Caleb",
    "Mei",     "Hector", "Nadia",   "Walter",
    "Alma",    "Tobias", "Keisha",  "Jonathan",
    "Rosa",    "Aaron",  "Leila",   "Franklin",
    "Annika",  "Diego",  "Bernice", "Christopher-Alexander",
};

constexpr std::string_view kStreets[] = {
    "Alder Street",     "Birchwood Lane",   "Canyon Road",       "Dogwood Court",
    "East 14th Avenue", "Foundry Street",   "Garfield Avenue",   "Harbor View Drive",
    "Ironwood Place",   "Juniper Way",      "Kingfisher Loop",   "Larkspur Lane",
    "Mill Race Road",   "North 3rd Street", "Orchard Terrace",   "Prospect Hill Road",
    "Quarry Road",      "Riverside Drive",  "South Main Street", "St. Mary's Lane",
    "Union Avenue",     "Vine Street",      "Willow Bend",       "Old Stagecoach Highway",
};

/// Returns the letters a to z of a name, in lower case.
std::string PlainLetters(std::string_view name) {
    std::string letters;
    for (const char c : name) {
        if (c >= 'A' && c <= 'Z') letters += static_cast<char>(c - 'A' + 'a');
        if (c >= 'a' && c <= 'z') letters += c;
    }
    return letters;
}

} // namespace

std::span<const SampleTown> SampleTowns() {
    return kTowns;
}

std::string_view SampleSurname(SampleDice& dice) {
    return dice.Pick(kSurnames);
}

std::string_view SampleSurname(std::size_t index) {
    return kSurnames[index % std::size(kSurnames)];
}

std::string_view SampleGivenName(SampleDice& dice) {
    return dice.Pick(kGivenNames);
}

std::string SampleAddress(SampleDice& dice) {
    return SampleAddress(dice, dice.Below(std::size(kStreets)));
}

std::string SampleAddress(SampleDice& dice, std::size_t street) {
    return fmt::format("{} {}", dice.Between(12, 4890), kStreets[street % std::size(kStreets)]);
}

std::string SamplePhone(SampleDice& dice, int areaCode) {
    return fmt::format("({}) 555-01{:02}", areaCode, dice.Below(100));
}

std::string SampleEmail(std::string_view givenName, std::string_view surname) {
    return fmt::format("{}.{}@mail.example", PlainLetters(givenName), PlainLetters(surname));
}

std::string SampleDigits(SampleDice& dice, int count) {
    std::string digits;
    for (int i = 0; i < count; ++i)
        digits += static_cast<char>('0' + dice.Below(10));
    return digits;
}

} // namespace store
