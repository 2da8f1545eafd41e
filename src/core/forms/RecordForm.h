#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/RecordKinds.h"
#include "core/binding/ShownFields.h"
#include "core/forms/Form.h"
#include "core/forms/RecordAdditions.h"
#include "platform/database/Recordset.h"

class QLabel;

namespace core::forms {

class ActionBar;
class RecordBar;

/// The row that a screen edits.
struct RecordPlace {
    RecordKind kind = kNone;
    std::string table;
    std::string idField;
    /// The table whose tags are bound, for a screen that edits rows of two tables; otherwise empty.
    std::string tagTable = {};
};

/// The base of screens that edit one row: loading, becoming dirty, validating and saving. A derived
/// screen adds its lists, its rules and what follows a save. It is constructed in this order:
/// setupUi, Wire, then from the screen's own Setup, OpenRecord.
///
/// A save writes the controls that the user touched, or all of them for a new record; a stored
/// record without changes isn't written at all. If records change elsewhere, untouched controls are
/// refreshed and touched ones stay.
class RecordForm : public Form {
    Q_OBJECT

  public:
    /// Returns 0 while the record is new.
    std::int32_t Id() const { return id_; }
    /// Returns whether something was changed since the last load or save.
    bool Dirty() const { return dirty_; }
    /// Returns true while code fills the controls; change signals are not user edits.
    bool Loading() const { return loading_; }

    /// The commands of the buttons. Both save first and stop if that fails.
    void Apply();
    void SaveAndClose();

  protected:
    explicit RecordForm(RecordPlace place, QWidget* parent = nullptr,
                        FormSizing sizing = FormSizing::Resizable);

    /// Connects the controls created by setupUi.
    void Wire();
    /// Fills the lists, loads the record (or, for id 0 or an id that doesn't exist, fills in the
    /// values that a new one starts with), and shows the form.
    void OpenRecord(std::int32_t id, const std::function<void()>& fillLists,
                    std::function<void()> propose = {});

    /// Opens the record's row for reading; there is no current row if the record doesn't exist.
    virtual void FindRow(platform::Recordset& row);
    /// Opens the record's row for writing: a new row under a new id for a new record; a deleted one
    /// is restored under its id, with every field as it was last read.
    virtual void FindRowToWrite(platform::Recordset& row);
    /// Fills the lists that depend on other fields of the row (the rooms of its unit), before the
    /// row is shown.
    virtual void FillListsFor(platform::Recordset& row);
    /// Copies the row to the controls.
    virtual void ShowRow(platform::Recordset& row);
    /// Copies the fields to be written to the row.
    virtual void WriteRow(platform::Recordset& row);
    /// Called if no record has the id; the screen continues as a new one.
    virtual void RowMissing() {}
    virtual void ShowCaption() = 0;
    /// Returns the errors in the entries, a line each; empty if they can be saved.
    virtual std::vector<std::string> Errors() { return {}; }
    /// Asks any questions once the entries are valid; returns false to stop the save.
    virtual bool Agreed() { return true; }
    /// Writes whatever else is saved together with the row, within its unit of work.
    virtual void StoreRest() {}
    /// Writes the entries, within a unit of work. A screen that saves more than its row leaves all
    /// of it to the logic and sets a new record's id.
    virtual void Store();
    /// Returns whether Close saves a new record without entries.
    virtual bool SavesUntouched() const { return true; }
    /// Called after a save, to do what depends on it.
    virtual void AfterSave() {}
    /// Refreshes the parts that depend on records of `kind`; it never makes the form dirty.
    virtual void Refresh(RecordKind kind);
    /// Refreshes other rows that the screen shows; `touched` controls must stay. Called whenever
    /// the record itself is read again.
    virtual void FollowOthers(const binding::Controls& touched);

    /// Returns the records that the screen shows, for the additions of other rooms.
    virtual std::vector<Subject> Subjects() const;

    /// Shows another record in the same form, or a new one with id 0; the entries are dropped.
    void ShowRecord(std::int32_t id);
    /// Turns the present entries into a new record.
    void BecomeNew();
    void Load();
    /// Returns false if the entries are refused. Throws if the database fails; the form stays
    /// dirty.
    bool Save();
    void MarkDirty();
    void SetId(std::int32_t id) { id_ = id; }

    /// Returns whether the row being written is new, or is restored after its deletion.
    bool WritesNewRow() const { return writesNewRow_; }
    /// Returns true for a new record, and for a control changed by the user since the row was
    /// shown.
    bool IsTouched(const QWidget& control) const { return fields_.IsTouched(control); }
    /// Returns the bound controls that the user changed.
    binding::Controls Touched() const { return fields_.Touched(*this); }

    bool MayClose() override;
    void NotifyUpdate(RecordKind kind, std::int16_t action, std::int32_t id) final;
    void changeEvent(QEvent* event) override;

    /// Sets Loading during its lifetime.
    class LoadingGuard {
      public:
        explicit LoadingGuard(RecordForm& form) : form_(form), before_(form.loading_) {
            form_.loading_ = true;
        }
        ~LoadingGuard() { form_.loading_ = before_; }
        LoadingGuard(const LoadingGuard&) = delete;
        LoadingGuard& operator=(const LoadingGuard&) = delete;

      private:
        RecordForm& form_;
        bool before_;
    };

  private:
    using Fields = std::vector<std::pair<std::string, platform::Value>>;

    enum class RowState { New, Stored, Deleted };

    static Fields FieldsOf(platform::Recordset& row);
    RowState FindState();
    void FollowRow(const binding::Controls& touched);
    void ShowDeleted(bool isDeleted);
    bool AgreedToRestore();
    void ShowDirty();
    void ShowSubjects();
    std::vector<std::string> AllErrors();

    RecordPlace place_;
    binding::ShownFields fields_;
    std::function<void()> propose_;
    Fields read_; ///< the row as it was last read; empty for a new record
    ActionBar* actions_ = nullptr;
    RecordBar* bar_ = nullptr;
    QLabel* deleted_ = nullptr;
    std::int32_t id_ = 0;
    bool dirty_ = false;
    bool loading_ = false;
    bool storing_ = false;
    bool writesNewRow_ = false;
};

} // namespace core::forms
