#include <algorithm>

#include "platform/database/dialect/LikePattern.h"
#include "platform/database/dialect/RuntimeCall.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

bool StartsCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

std::size_t Wanted(const RuntimeCall& call, int argument) {
    return static_cast<std::size_t>(std::max<std::int64_t>(0, call.Whole(argument)));
}

void Left(const RuntimeCall& call) {
    call.Answer(LeftCharacters(call.Text(0), Wanted(call, 1)));
}

void Right(const RuntimeCall& call) {
    const std::string_view text = call.Text(0);
    std::size_t wanted = Wanted(call, 1);
    std::size_t at = text.size();
    while (at > 0 && wanted > 0) {
        --at;
        if (StartsCharacter(text[at])) --wanted;
    }
    call.Answer(text.substr(at));
}

/// Returns a number of characters (or all) from a position counted from 1.
void Middle(const RuntimeCall& call) {
    if (call.Whole(1) < 1) throw ConversionError("Mid counts from 1");
    const std::string_view text = call.Text(0);
    std::size_t before = Wanted(call, 1) - 1;
    std::size_t wanted = call.Count() == 3 ? Wanted(call, 2) : text.size();
    std::size_t start = 0;
    while (start < text.size() && before > 0) {
        ++start;
        if (start == text.size() || StartsCharacter(text[start])) --before;
    }
    std::size_t end = start;
    while (end < text.size() && wanted > 0) {
        ++end;
        if (end == text.size() || StartsCharacter(text[end])) --wanted;
    }
    call.Answer(text.substr(start, end - start));
}

void Space(const RuntimeCall& call) {
    constexpr std::size_t kMost = 1'000'000;
    if (Wanted(call, 0) > kMost) throw OverflowError("The text is too long.");
    call.Answer(std::string(Wanted(call, 0), ' '));
}

void Upper(const RuntimeCall& call) {
    call.Answer(ToUpper(call.Text(0)));
}
void Lower(const RuntimeCall& call) {
    call.Answer(ToLower(call.Text(0)));
}

/// Returns the position of one text in another, counted in characters from 1; 0 if it isn't there.
void FindFrom(const RuntimeCall& call) {
    const std::string text = ToLower(call.Text(1));
    const std::string part = ToLower(call.Text(2));
    const auto start = std::max<std::int64_t>(1, call.Whole(0));
    std::size_t at = 0;
    std::int64_t character = 1;
    const auto step = [&] {
        ++at;
        while (at < text.size() && !StartsCharacter(text[at]))
            ++at;
        ++character;
    };
    while (character < start && at < text.size())
        step();
    const std::size_t found = character < start ? std::string_view::npos : FindText(text, part, at);
    if (found == std::string_view::npos) return call.Answer(std::int64_t{0});
    while (at < found)
        step();
    call.Answer(character);
}

void Like(const RuntimeCall& call) {
    call.Answer(std::int64_t{MatchesPattern(call.Text(0), call.Text(1))});
}

} // namespace

void AddTextFunctions(sqlite3* connection) {
    AddFunction<RunUnlessNull<Left>>(connection, "vestrel_left", 2);
    AddFunction<RunUnlessNull<Right>>(connection, "vestrel_right", 2);
    AddFunction<RunUnlessNull<Middle>>(connection, "vestrel_mid", 2);
    AddFunction<RunUnlessNull<Middle>>(connection, "vestrel_mid", 3);
    AddFunction<RunUnlessNull<Space>>(connection, "vestrel_space", 1);
    AddFunction<RunUnlessNull<Upper>>(connection, "vestrel_upper", 1);
    AddFunction<RunUnlessNull<Lower>>(connection, "vestrel_lower", 1);
    AddFunction<RunUnlessNull<FindFrom>>(connection, "vestrel_instr", 3);
    AddFunction<RunUnlessNull<Like>>(connection, "vestrel_like", 2);
}

} // namespace platform::dialect
