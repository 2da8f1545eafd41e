#include "photoreel/Reel.h"

#include <fmt/core.h>

#include "platform/values/Text.h"

namespace photoreel {

bool Reel::First(const Obstacle& obstacle) {
    return GoFrom(0, Direction::Forward, obstacle);
}

bool Reel::Last(const Obstacle& obstacle) {
    return GoFrom(After(0, Direction::Backward), Direction::Backward, obstacle);
}

bool Reel::Next(const Obstacle& obstacle) {
    return GoFrom(After(position_, Direction::Forward), Direction::Forward, obstacle);
}

bool Reel::Previous(const Obstacle& obstacle) {
    return GoFrom(After(position_, Direction::Backward), Direction::Backward, obstacle);
}

std::size_t Reel::After(std::size_t position, Direction direction) const {
    const std::size_t count = list_.pictures.size();
    if (count == 0) return 0;
    return (position + (direction == Direction::Forward ? 1 : count - 1)) % count;
}

bool Reel::GoFrom(std::size_t position, Direction direction, const Obstacle& obstacle) {
    skipped_.clear();
    isShown_ = false;
    for (std::size_t tried = 0; tried < list_.pictures.size(); ++tried) {
        const documents::ShowPicture& picture = list_.pictures[position];
        const std::string reason = obstacle(picture);
        if (reason.empty()) {
            position_ = position;
            isShown_ = true;
            return true;
        }
        skipped_.push_back(fmt::format("Skipped {}: {}", picture.description, reason));
        position = After(position, direction);
    }
    return false;
}

std::string Reel::Caption() const {
    std::string caption;
    if (isShown_) {
        caption = fmt::format("{} ({} of {})", list_.pictures[position_].description, position_ + 1,
                              list_.pictures.size());
    }
    for (const std::string& line : skipped_) {
        if (!caption.empty()) caption += '\n';
        caption += line;
    }
    return caption;
}

std::string ListFileOf(std::span<const std::string> words) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::size_t sign = words[i].find('=');
        if (!platform::EqualIgnoringCase(words[i].substr(0, sign), documents::kLoadFileSwitch)) {
            continue;
        }
        if (sign != std::string::npos) return words[i].substr(sign + 1);
        return i + 1 < words.size() ? words[i + 1] : std::string();
    }
    return {};
}

} // namespace photoreel
