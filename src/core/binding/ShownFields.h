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

/// Which bound controls of a row are written.
enum class WriteFields {
    Touched, ///< those whose contents differ from what was shown
    All,     ///< for a new row
};

using Controls = std::set<const QWidget*>;

/// What the bound controls of a form held when a row was last shown in them. A control counts as
/// touched when it holds something else since: only that is written, so that a save changes nothing
/// that the user didn't, whatever the lists offer, the boxes round or other programs wrote.
class ShownFields {
  public:
    /// `table` chooses among tags that name a table as well, as in BindFromRecord.
    explicit ShownFields(std::string table = {}) : table_(std::move(table)) {}

    /// Remembers what the controls hold without a row: a null shows as this. Only the first call
    /// counts.
    void KeepBlanks(const QWidget& form);
    /// Shows the row. A stored choice that a list doesn't offer joins it under its name.
    void Show(QWidget& form, platform::Recordset& row);
    /// Takes what the controls hold now for what was shown: to be called when the screen has done
    /// its part of showing the row. Those in `touched` stay touched.
    void Settle(const QWidget& form, const Controls& touched = {});
    /// Shows the row again in the controls outside `touched` whose field or contents have changed.
    void ShowUntouched(QWidget& form, platform::Recordset& row, const Controls& touched);
    /// Shows no row: every control as it was without one.
    void ShowBlanks(QWidget& form);
    /// From now on every control counts as touched.
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
