#pragma once

#include <QVariant>
#include <QWidget>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "core/binding/Tags.h"
#include "platform/database/Recordset.h"

namespace core::binding {

/// Which bound controls are written to the row.
enum class WriteFields {
    Touched, ///< those whose contents differ from what was shown
    All,     ///< for a new row
};

using Controls = std::set<const QWidget*>;

/// Remembers what the bound controls of a form held when a row was last shown in them. A control
/// counts as touched if it holds something else since. Only touched controls are written, so a save
/// changes only what the user changed, whatever the lists offer, however the boxes round, and
/// whatever other programs wrote.
class ShownFields {
  public:
    /// `table` selects among tags that also name a table, as in BindFromRecord.
    explicit ShownFields(std::string table = {}) : table_(std::move(table)) {}

    /// Remembers the contents of the controls before any row is shown, which is how a null is
    /// shown. Only the first call counts.
    void KeepBlanks(const QWidget& form);
    /// Shows the row. A stored choice that a list doesn't offer joins it under its name.
    void Show(QWidget& form, platform::Recordset& row);
    /// Takes the present contents of the controls as shown; called when the screen has finished its
    /// own part of showing the row. Controls in `touched` stay touched.
    void Settle(const QWidget& form, const Controls& touched = {});
    /// Shows the row again in the controls outside `touched` whose field or contents have changed.
    void ShowUntouched(QWidget& form, platform::Recordset& row, const Controls& touched);
    /// Shows every control as it was before any row was shown.
    void ShowBlanks(QWidget& form);
    /// Makes every control count as touched from now on.
    void Forget() { shown_.clear(); }

    bool IsTouched(const QWidget& control) const;
    Controls Touched(const QWidget& form) const;

    /// Sets the fields of the row; the caller updates it. Throws as BindToRecord does.
    void Write(const QWidget& form, platform::Recordset& row, WriteFields which) const;

  private:
    struct Contents {
        std::optional<platform::Value> value;
        QVariant content; ///< compared instead of a value that can't be read

        bool operator==(const Contents& other) const;
    };
    struct Shown {
        platform::Value stored;
        Contents contents;
    };

    template <class Action>
    void ForEach(const QWidget& form, Action action) const;
    void ShowBlank(QWidget& control) const;
    void ShowOne(QWidget& control, const Binding& binding, const platform::Field& field);
    static Contents ContentsOf(const QWidget& control, char sigil);

    std::string table_;
    std::map<const QWidget*, QVariant> blanks_;
    std::map<const QWidget*, Shown> shown_;
};

} // namespace core::binding
