#pragma once

#include <QDialog>
#include <cstdint>
#include <functional>

#include "core/FormPosition.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"

namespace core::forms {

/// A modeless window of the program. Its object name determines the place where it was last closed,
/// at which it opens, and its help page (F1). It receives broadcasts of changed records, and
/// deletes itself when it closes.
class Form : public QDialog {
    Q_OBJECT

  public:
    explicit Form(QWidget* parent = nullptr, FormSizing sizing = FormSizing::Resizable);

    /// Returns the id of the open record; 0 for a new one, or if there is none. It is stored as
    /// text in the property "tag".
    std::int32_t OpenRecordId() const;

    /// Asks the user before the form closes, if there is something to ask; returns whether it may
    /// close. It may not while one of its commands is running.
    bool AskToClose();
    /// Closes without asking, for the end of the process.
    void CloseUnasked();
    /// Returns whether a command of the form is running.
    bool IsBusy() const { return busy_; }

    /// Handles Escape.
    void reject() override;

  protected:
    /// Shows the form without blocking, the first time at its stored place.
    void Open();
    /// Returns whether the form may close; a form with unsaved changes asks.
    virtual bool MayClose() { return true; }
    /// Called when records of `kind` have changed.
    virtual void NotifyUpdate(RecordKind kind, std::int16_t action, std::int32_t id);

    /// Runs a command of the user's (a button, a menu item) and shows any error; returns true if
    /// there was none. While it runs, the form takes no second command and doesn't close, and after
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
