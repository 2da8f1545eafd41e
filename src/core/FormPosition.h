#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace core {

enum class WindowState : std::int32_t { Normal = 0, Minimized = 1, Maximized = 2 };

struct FormRectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    friend bool operator==(const FormRectangle&, const FormRectangle&) = default;
};

/// Whether a form keeps its size: a dialog whose border can't be moved always opens as designed.
enum class FormSizing { Resizable, Fixed };

/// The place and state that a form takes when it loads.
struct FormPlacement {
    WindowState state = WindowState::Normal;
    /// Empty if the form is not normal, or has no stored place: it opens where it is designed.
    std::optional<FormRectangle> place;
    /// Whether the width and height of `place` apply, besides its left and top.
    bool appliesSize = false;
};

/// Reads where a form of this name was when it was last closed.
FormPlacement RestoreForm(std::string_view formName, FormSizing sizing);

/// Remembers the state of a form that closes, and its place if it is normal; a minimised or
/// maximised form keeps the last normal one.
void SaveForm(std::string_view formName, WindowState state, const FormRectangle& place);

} // namespace core
