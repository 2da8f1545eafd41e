#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/forms/Form.h"
#include "platform/database/Recordset.h"

namespace core::forms {

class ActionBar;

/// The row that a screen edits.
struct RecordPlace {
    std::int16_t kind = 0;
    std::string table;
    std::string idField;
};

/// The life of a screen that edits one row: it loads, becomes dirty, validates, saves. A derived
/// screen adds its lists, its rules and what follows a save.
///
/// It is made in this order: setupUi, Wire, and from the screen's own Setup, OpenRecord.
class RecordForm : public Form {
    Q_OBJECT

  public:
    /// 0 while the record is new.
    std::int32_t Id() const { return id_; }
    /// Something was changed since the last load or save.
    bool Dirty() const { return dirty_; }
    /// Code fills the controls: what they tell of isn't the person's doing.
    bool Loading() const { return loading_; }

    /// What the buttons do. Apply and Close save first, and do no more when that fails.
    void Apply();
    void SaveAndClose();

  protected:
    explicit RecordForm(RecordPlace place, QWidget* parent = nullptr,
                        FormSizing sizing = FormSizing::Resizable);

    /// Connects the controls that setupUi made.
    void Wire();
    /// Fills the lists, loads the record (none for 0) and shows the form.
    void OpenRecord(std::int32_t id, const std::function<void()>& fillLists);

    /// Opens the record's row to read it; no current row means that there is none.
    virtual void FindRow(platform::Recordset& row);
    /// Opens the record's row to write it: a new row under a new id for a new record, under the old
    /// id for one that has gone meanwhile.
    virtual void FindRowToWrite(platform::Recordset& row);
    /// Copies the row to the controls, and back.
    virtual void ShowRow(platform::Recordset& row);
    virtual void WriteRow(platform::Recordset& row);
    /// A record of an id that isn't there; the screen goes on as that of a new record.
    virtual void RowMissing() {}
    virtual void ShowCaption() = 0;
    /// What is wrong with what was entered, a line each.
    virtual std::vector<std::string> Errors() { return {}; }
    /// Asks what there is to ask once nothing is wrong; No stops the save.
    virtual bool Agreed() { return true; }
    /// Writes what was entered. A screen whose save is more than its row gives the whole of it to
    /// the logic, and sets the id that a new record got.
    virtual void Store();
    /// What a save brings about beyond its row.
    virtual void AfterSave() {}
    /// Refills what depends on records of `kind`; nothing that changes here makes the form dirty.
    virtual void Refresh(std::int16_t kind);

    void Load();
    /// False when the entries are refused; a failure of the database is thrown, the form dirty.
    bool Save();
    void MarkDirty();
    void SetId(std::int32_t id) { id_ = id; }

    bool MayClose() override;
    void NotifyUpdate(std::int16_t kind, std::int16_t action, std::int32_t id) final;

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
    void ShowDirty();
    std::vector<std::string> AllErrors();

    RecordPlace place_;
    ActionBar* actions_ = nullptr;
    std::int32_t id_ = 0;
    bool dirty_ = false;
    bool loading_ = false;
};

} // namespace core::forms
