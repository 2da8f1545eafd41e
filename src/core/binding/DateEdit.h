#pragma once

#include <QLineEdit>
#include <optional>

#include "platform/values/Date.h"

class QCalendarWidget;

namespace core::binding {

/// A date, typed as mm/dd/yyyy or picked from a calendar; blank means no date. Text that isn't a
/// valid date is kept as typed, and marked.
class DateEdit : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(bool required READ IsRequired WRITE SetRequired)

  public:
    explicit DateEdit(QWidget* parent = nullptr);

    /// Returns whether a date is required: the box then can't be left blank, and returns to its
    /// last date.
    bool IsRequired() const { return required_; }
    void SetRequired(bool required) { required_ = required; }

    /// Returns the date shown: unset for a blank box, nothing if the text isn't a valid date.
    std::optional<platform::Date> Day() const;
    void SetDay(platform::Date day);
    /// Shows stored text: a date in any form as mm/dd/yyyy, other text unchanged.
    void SetStoredText(const QString& text);
    bool IsValid() const { return Day().has_value(); }

    /// Opens the calendar at the date shown, or at today.
    void ShowCalendar();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Tidy();
    void MarkValidity();

    QAction* open_;
    bool required_ = false;
    platform::Date last_;
};

} // namespace core::binding
