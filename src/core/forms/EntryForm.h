#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/RecordKinds.h"
#include "core/forms/Form.h"

namespace core::forms {

class ActionBar;

/// A screen whose entries are submitted to the logic as a whole, instead of editing a row: a
/// payment, a split. It becomes dirty, asks before changes are lost, and closes after submitting.
///
/// It is constructed in this order: setupUi, Wire, then from the screen's own Setup, Begin.
class EntryForm : public Form {
    Q_OBJECT

  public:
    bool Dirty() const { return dirty_; }

    /// Submits the entries; the screen stays open if they are refused or can't be saved.
    void Submit();

  protected:
    using Form::Form;

    /// Connects the controls created by setupUi. The submit button shows `text`, and `tag` is its
    /// command.
    void Wire(const QString& text, const QString& hint, std::string_view tag);
    /// Fills the controls without making the form dirty, and shows it; an error thrown by `fill` is
    /// shown.
    void Begin(const std::function<void()>& fill);

    /// Submits the entries to the logic. Throws on failure.
    virtual void Store() = 0;
    /// Returns the errors in the entries, a line each; by default a line for each typed date that
    /// isn't valid.
    virtual std::vector<std::string> Errors();
    /// Asks any questions once the entries are valid; returns false to keep the screen open.
    virtual bool Agreed() { return true; }
    /// Refreshes the parts that depend on records of `kind`, without making the form dirty.
    virtual void Refresh(RecordKind kind);

    /// Runs `work`, whose changes to the controls don't make the form dirty.
    void Quietly(const std::function<void()>& work);
    bool Loading() const { return loading_; }
    void MarkDirty();

    bool MayClose() override;
    void NotifyUpdate(RecordKind kind, std::int16_t action, std::int32_t id) final;

  private:
    bool dirty_ = false;
    bool loading_ = false;
};

} // namespace core::forms
