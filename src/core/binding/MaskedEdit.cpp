#include "core/binding/MaskedEdit.h"

#include <QFocusEvent>

namespace core::binding {

MaskedEdit::MaskedEdit(QWidget* parent) : QLineEdit(parent) {
    setEchoMode(QLineEdit::Password);
}

void MaskedEdit::SetMasking(bool masking) {
    masking_ = masking;
    setEchoMode(masking && !hasFocus() ? QLineEdit::Password : QLineEdit::Normal);
}

void MaskedEdit::focusInEvent(QFocusEvent* event) {
    setEchoMode(QLineEdit::Normal);
    QLineEdit::focusInEvent(event);
}

void MaskedEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // Its own context menu takes the focus only briefly.
    if (masking_ && event->reason() != Qt::PopupFocusReason) setEchoMode(QLineEdit::Password);
}

} // namespace core::binding
