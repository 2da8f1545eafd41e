#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/forms/Form.h"

namespace core::forms {

class ActionBar;

/// A screen whose entries the logic takes as a whole, rather than a row that it edits: a payment, a
/// split. It becomes dirty, asks before changes are lost, and closes once it has submitted.
///
/// It is made in this order: setupUi, Wire, and from the screen's own Setup, Begin.
class EntryForm : public Form {
    Q_OBJECT

  public:
    bool Dirty() const { return dirty_; }

    /// What the button does: the screen stays when the entries are refused, or can't be kept.
    void Submit();

  protected:
    using Form::Form;

    /// Connects the controls that setupUi made. The button that submits says `text`, and `tag` is
    /// its word.
    void Wire(const QString& text, const QString& hint, std::string_view tag);
    /// Fills the controls, which is nobody's change, and shows the form; what `fill` throws is
    /// shown.
    void Begin(const std::function<void()>& fill);

    /// Gives the entries to the logic. Failures are thrown.
    virtual void Store() = 0;
    /// What is wrong with what was entered, a line each; by itself, typed days that are none.
    virtual std::vector<std::string> Errors();
    /// Asks what there is to ask once nothing is wrong; No keeps the screen open.
    virtual bool Agreed() { return true; }
    /// Refreshes what depends on records of `kind`, which is nobody's change either.
    virtual void Refresh(std::int16_t kind);

    /// Runs what changes controls by code.
    void Quietly(const std::function<void()>& work);
    bool Loading() const { return loading_; }
    void MarkDirty();

    bool MayClose() override;
    void NotifyUpdate(std::int16_t kind, std::int16_t action, std::int32_t id) final;

  private:
    bool dirty_ = false;
    bool loading_ = false;
};

} // namespace core::forms
