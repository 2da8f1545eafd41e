#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "documents/ShowList.h"

namespace photoreel {

/// Returns why a picture can't be shown; empty if it can.
using Obstacle = std::function<std::string(const documents::ShowPicture& picture)>;

/// A sequence of pictures to go through in both directions, wrapping around at the ends. Pictures
/// that can't be shown are skipped.
class Reel {
  public:
    explicit Reel(documents::ShowList list) : list_(std::move(list)) {}

    // Each function tries one picture after another until one can be shown; returns false if none
    // can.
    bool First(const Obstacle& obstacle);
    bool Last(const Obstacle& obstacle);
    bool Next(const Obstacle& obstacle);
    bool Previous(const Obstacle& obstacle);

    const std::string& Title() const { return list_.title; }
    bool IsEmpty() const { return list_.pictures.empty(); }

    /// Returns the caption of the present picture: its description and its number, and a line for
    /// each picture that was just skipped, with the reason.
    std::string Caption() const;

  private:
    enum class Direction { Forward, Backward };

    std::size_t After(std::size_t position, Direction direction) const;
    bool GoFrom(std::size_t position, Direction direction, const Obstacle& obstacle);

    documents::ShowList list_;
    std::size_t position_ = 0;
    bool isShown_ = false; ///< there is a picture at the position that can be shown
    std::vector<std::string> skipped_;
};

/// Returns the list file on the command line ("/loadfile FILE" or "/loadfile=FILE"), or an empty
/// string.
std::string ListFileOf(std::span<const std::string> words);

} // namespace photoreel
