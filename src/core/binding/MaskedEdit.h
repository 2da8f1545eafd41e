#pragma once

#include <QLineEdit>

namespace core::binding {

/// A box for numbers that nobody looking over a shoulder should read: cards, bank accounts, social
/// security. What it holds shows as dots until the box has the focus.
class MaskedEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit MaskedEdit(QWidget* parent = nullptr);

    /// False shows the text all the time, for a box that holds something secret only at times.
    void SetMasking(bool masking);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    bool masking_ = true;
};

} // namespace core::binding
