#pragma once

#include <QLineEdit>
#include <optional>

#include "platform/values/Currency.h"

namespace core::binding {

/// An amount of money, typed plainly and shown as money is shown everywhere.
class MoneyEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit MoneyEdit(QWidget* parent = nullptr);

    /// The amount, zero for a blank box; nothing when the text is no amount or too large a one.
    std::optional<platform::Currency> Amount() const;
    void SetAmount(platform::Currency amount);

  protected:
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace core::binding
