#pragma once

class QLineEdit;

namespace core::binding {

enum class AddressKind { Mail, Web };

/// Makes a click on the address open it in the mail program or the browser; a click into a box that
/// already has the focus only moves its caret.
void OpenOnClick(QLineEdit& box, AddressKind kind);

/// Adds an icon to the box that opens the address in the mail or the browser program; a click into
/// the box only selects its text.
void OpenByIcon(QLineEdit& box, AddressKind kind);

/// The boxes that a zip code's place is written to; null for a form without a county.
struct PlaceBoxes {
    QLineEdit* city = nullptr;
    QLineEdit* state = nullptr;
    QLineEdit* county = nullptr;
};

/// Looks the zip code up when its box loses the focus, and fills the empty ones of the other boxes.
void FillPlaceByZip(QLineEdit& zip, const PlaceBoxes& boxes);

} // namespace core::binding
