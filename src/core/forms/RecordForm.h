#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

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
    std::int16_t kind = 0;
    std::string table;
    std::string idField;
    /// The table in the tags of a screen that edits rows of two tables; empty if the tags name
    /// none.
    std::string tagTable = {};
};

/// The life of a screen that edits one row: it loads, becomes dirty, validates and saves. A derived
/// screen adds its lists, its rules and what follows a save.
///
/// It is made in this order: setupUi, Wire, and from the screen's own Setup, OpenRecord.
///
/// A save writes the controls that the user touched, and all of them for a new record; a stored
/// record that wasn't changed isn't written at all. When records change elsewhere the untouched
/// controls follow and the touched ones stay.
class RecordForm : public Form {
    Q_OBJECT

  public:
    /// 0 while the record is new.
    std::int32_t Id() const { return id_; }
    /// Something was changed since the last load or save.
    bool Dirty() const { return dirty_; }
    /// True while code fills the controls; change signals are not user edits.
    bool Loading() const { return loading_; }

    /// The commands of the buttons. Both save first, and do nothing more if that fails.
    void Apply();
    void SaveAndClose();

  protected:
    explicit RecordForm(RecordPlace place, QWidget* parent = nullptr,
                        FormSizing sizing = FormSizing::Resizable);

    /// Connects the controls that setupUi made.
    void Wire();
    /// Fills the lists, loads the record, or fills in what a new one starts with (id 0, or an id
    /// that doesn't exist), and shows the form.
    void OpenRecord(std::int32_t id, const std::function<void()>& fillLists,
                    std::function<void()> propose = {});

    /// Opens the record's row to read it; no current row if it doesn't exist.
    virtual void FindRow(platform::Recordset& row);
    /// Opens the record's row to write it: a new row under a new id for a new record; a deleted one
    /// comes back under its id, with all that it held when it was read.
    virtual void FindRowToWrite(platform::Recordset& row);
    /// Fills the lists that depend on other fields of the row (the rooms of its unit), before the
    /// row is shown.
    virtual void FillListsFor(platform::Recordset& row);
    /// Copies the row to the controls.
    virtual void ShowRow(platform::Recordset& row);
    /// Copies what is to be written to the row.
    virtual void WriteRow(platform::Recordset& row);
    /// The record of the id doesn't exist; the screen goes on with a new one.
    virtual void RowMissing() {}
    virtual void ShowCaption() = 0;
    /// What is wrong with what was entered, a line each.
    virtual std::vector<std::string> Errors() { return {}; }
    /// Asks what there is to ask once nothing is wrong; No stops the save.
    virtual bool Agreed() { return true; }
    /// Writes what was entered, within a unit of work. A screen whose save is more than its row
    /// gives all of it to the logic, and sets the id that a new record got.
    virtual void Store();
    /// Whether Close saves a new record that nothing was entered in.
    virtual bool SavesUntouched() const { return true; }
    /// Does what follows a save beyond its row.
    virtual void AfterSave() {}
    /// Refills what depends on records of `kind`; nothing that changes here makes the form dirty.
    virtual void Refresh(std::int16_t kind);
    /// Follows other rows that the screen shows; `touched` controls must stay. Called whenever the
    /// record itself is looked up again.
    virtual void FollowOthers(const binding::Controls& touched);

    /// The records that the screen shows, for what other rooms add to it.
    virtual std::vector<Subject> Subjects() const;

    /// Shows another record in the same form, or a new one with id 0; what was entered is dropped.
    void ShowRecord(std::int32_t id);
    /// What the controls hold is a new record's from now on.
    void BecomeNew();
    void Load();
    /// False if the entries are refused; throws a failure of the database, the form stays dirty.
    bool Save();
    void MarkDirty();
    void SetId(std::int32_t id) { id_ = id; }

    /// The row being written is a new one, or comes back after it was deleted.
    bool WritesNewRow() const { return writesNewRow_; }
    /// True for a new record, and for a control that the user changed since the row was shown.
    bool IsTouched(const QWidget& control) const { return fields_.IsTouched(control); }
    /// The bound controls that the user changed.
    binding::Controls Touched() const { return fields_.Touched(*this); }

    bool MayClose() override;
    void NotifyUpdate(std::int16_t kind, std::int16_t action, std::int32_t id) final;
    void changeEvent(QEvent* event) override;

    /// Sets Loading while it lives.
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
