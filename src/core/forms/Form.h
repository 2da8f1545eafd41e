#pragma once

#include <QDialog>
#include <cstdint>
#include <functional>

#include "core/FormPosition.h"
#include "core/NotifyAll.h"

namespace core::forms {

/// A window of the program, not modal: it opens where it last stood, hears of changed records, and
/// has its help page (F1), all under its object name. It destroys itself when it closes.
class Form : public QDialog {
    Q_OBJECT

  public:
    explicit Form(QWidget* parent = nullptr, FormSizing sizing = FormSizing::Resizable);

    /// The id of the record that is open here, 0 for none or a new one. It stands in the property
    /// "tag" as text.
    std::int32_t OpenRecordId() const;

    /// Asks the user before the form closes, if there is something to ask; true if it may close. It
    /// may not while a command of the form is running.
    bool AskToClose();
    /// Closes without asking, for the end of the process.
    void CloseUnasked();
    /// A command of the form is running.
    bool IsBusy() const { return busy_; }

    /// Escape.
    void reject() override;

  protected:
    /// Shows the form without blocking; on its first time where it stood.
    void Open();
    /// Whether the form may close; a form with unsaved changes asks.
    virtual bool MayClose() { return true; }
    /// Records of `kind` changed.
    virtual void NotifyUpdate(std::int16_t kind, std::int16_t action, std::int32_t id);

    /// Runs a command of the user's (a button, a menu item) and shows what it throws; true if it
    /// ran without. While a command runs the form takes no second one and doesn't close, and once
    /// it has closed it takes none: a double click must not act twice.
    bool Perform(const std::function<void()>& command);

    void closeEvent(QCloseEvent* event) override;

  private:
    void Restore();
    void TurnPage(int step);

    FormSizing sizing_;
    bool isPlaced_ = false;
    bool asks_ = true;
    bool busy_ = false;
    bool closed_ = false;
    NotifyToken token_;
};

} // namespace core::forms
