#pragma once

class QLineEdit;

namespace core::binding {

enum class AddressKind { Mail, Web };

/// A click on the address in the box opens it in the mail or the browser program; one into a box
/// that is being typed in only sets its caret.
void OpenOnClick(QLineEdit& box, AddressKind kind);

/// Adds an icon to the box that opens the address in the mail or the browser program; a click into
/// the box only selects its text.
void OpenByIcon(QLineEdit& box, AddressKind kind);

/// Where the place of a zip code goes; a form without a county leaves it null.
struct PlaceBoxes {
    QLineEdit* city = nullptr;
    QLineEdit* state = nullptr;
    QLineEdit* county = nullptr;
};

/// Leaving the zip box looks its code up and fills those of the other boxes that are empty.
void FillPlaceByZip(QLineEdit& zip, const PlaceBoxes& boxes);

} // namespace core::binding
