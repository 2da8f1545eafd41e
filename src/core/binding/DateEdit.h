#pragma once

#include <QLineEdit>
#include <optional>

#include "platform/values/Date.h"

class QCalendarWidget;

namespace core::binding {

/// A day, typed as mm/dd/yyyy or picked from a calendar; blank is no day. A text that is no day is
/// kept as it was typed, and marked.
class DateEdit : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(bool required READ IsRequired WRITE SetRequired)

  public:
    explicit DateEdit(QWidget* parent = nullptr);

    /// A required date can't be left blank: the box goes back to the last date it held.
    bool IsRequired() const { return required_; }
    void SetRequired(bool required) { required_ = required; }

    /// The day shown, unset for a blank box; nothing when the text is no day.
    std::optional<platform::Date> Day() const;
    void SetDay(platform::Date day);
    /// A stored text: a day in whatever form shows as mm/dd/yyyy, any other text as it stands.
    void SetStoredText(const QString& text);
    bool IsValid() const { return Day().has_value(); }

    /// Opens the calendar on the day shown, or on today.
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
