#pragma once

#include <QLineEdit>

namespace core::binding {

/// A box for numbers that must not be read over the user's shoulder: cards, bank accounts, social
/// security. Its text shows as dots until the box has the focus.
class MaskedEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit MaskedEdit(QWidget* parent = nullptr);

    /// Turns the masking on or off; off is for a box whose text is only sometimes secret.
    void SetMasking(bool masking);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    bool masking_ = true;
};

} // namespace core::binding
