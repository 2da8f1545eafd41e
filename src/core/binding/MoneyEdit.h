#pragma once

#include <QLineEdit>
#include <optional>

#include "platform/values/Currency.h"

namespace core::binding {

/// An amount of money, typed plainly and shown in the program's money format.
class MoneyEdit : public QLineEdit {
    Q_OBJECT

  public:
    explicit MoneyEdit(QWidget* parent = nullptr);

    /// Returns the amount, zero for a blank box; nothing if the text isn't a valid amount or is too
    /// large.
    std::optional<platform::Currency> Amount() const;
    void SetAmount(platform::Currency amount);

  protected:
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace core::binding
