#include "platform/database/dialect/LikePattern.h"

#include <string>

#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

/// Returns the first character of the text with all of its bytes.
std::string_view FirstCharacter(std::string_view text) {
    std::size_t size = 1;
    while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80)
        ++size;
    return text.substr(0, size);
}

/// Returns true if the character is in the set between the brackets.
bool InSet(std::string_view character, std::string_view set) {
    const bool negated = set.starts_with('!') || set.starts_with('^');
    if (negated) set.remove_prefix(1);
    bool found = false;
    while (!set.empty()) {
        const std::string_view from = FirstCharacter(set);
        set.remove_prefix(from.size());
        std::string_view to = from;
        if (set.size() > 1 && set.front() == '-') {
            to = FirstCharacter(set.substr(1));
            set.remove_prefix(1 + to.size());
        }
        // UTF-8 bytes sort in the same order as the characters.
        found = found || (from <= character && character <= to);
    }
    return found != negated;
}

/// One step of the pattern other than `*`: the characters that it matches.
struct PatternStep {
    std::string_view piece;
    bool isSet = false;
};

PatternStep NextPatternStep(std::string_view pattern) {
    if (pattern.front() == '[') {
        const std::size_t close = pattern.find(']', 2);
        if (close != std::string_view::npos) return {pattern.substr(0, close + 1), true};
    }
    return {FirstCharacter(pattern), false};
}

bool Takes(const PatternStep& step, std::string_view character) {
    if (step.isSet) return InSet(character, step.piece.substr(1, step.piece.size() - 2));
    if (step.piece == "?" || step.piece == "_") return true;
    if (step.piece == "#") return IsDigit(character.front());
    return step.piece == character;
}

bool IsRun(char c) {
    return c == '*' || c == '%';
}

} // namespace

bool MatchesPattern(std::string_view mixedText, std::string_view mixedPattern) {
    const std::string lowerText = ToLower(mixedText);
    const std::string lowerPattern = ToLower(mixedPattern);
    std::string_view text = lowerText;
    std::string_view pattern = lowerPattern;
    // The place of the last `*` in the text; if the rest doesn't match, it takes one more
    // character.
    std::string_view textAtRun;
    std::string_view patternAfterRun;
    bool inRun = false;
    while (!text.empty() || !pattern.empty()) {
        if (!pattern.empty() && IsRun(pattern.front())) {
            pattern.remove_prefix(1);
            inRun = true;
            textAtRun = text;
            patternAfterRun = pattern;
            continue;
        }
        if (!pattern.empty() && !text.empty()) {
            const PatternStep step = NextPatternStep(pattern);
            const std::string_view character = FirstCharacter(text);
            if (Takes(step, character)) {
                pattern.remove_prefix(step.piece.size());
                text.remove_prefix(character.size());
                continue;
            }
        }
        if (!inRun || textAtRun.empty()) return false;
        textAtRun.remove_prefix(FirstCharacter(textAtRun).size());
        text = textAtRun;
        pattern = patternAfterRun;
    }
    return true;
}

} // namespace platform::dialect
