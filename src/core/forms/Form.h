#pragma once

#include <QDialog>
#include <cstdint>

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

    /// Asks what there is to ask before the form may close; true when it may.
    bool AskToClose();
    /// Closes whatever there is to be asked, for the end of the process.
    void CloseUnasked();

    /// Escape.
    void reject() override;

  protected:
    /// Shows the form without blocking; on its first time where it stood.
    void Open();
    /// Whether the form may go; a form with unsaved changes asks.
    virtual bool MayClose() { return true; }
    /// Records of `kind` changed.
    virtual void NotifyUpdate(std::int16_t kind, std::int16_t action, std::int32_t id);

    void closeEvent(QCloseEvent* event) override;

  private:
    void Restore();

    FormSizing sizing_;
    bool isPlaced_ = false;
    bool asks_ = true;
    NotifyToken token_;
};

} // namespace core::forms
