#pragma once

#include <QDialog>
#include <QObject>
#include <array>
#include <functional>
#include <utility>
#include <vector>

#include "core/RecordKinds.h"
#include "core/forms/RecordAdditions.h"

class QMenuBar;

namespace core::forms {

/// The menu bar and the added pages of one record form.
class RecordBar : public QObject {
    Q_OBJECT

  public:
    struct Commands {
        std::function<void()> apply;
        std::function<void()> close;
        /// Saves the changes; returns false if nothing was saved.
        std::function<bool()> save;
    };

    /// Adds the standard menus to the form's menu bar, which is created if necessary, and the
    /// pages.
    RecordBar(QDialog& form, RecordKind kind, Commands commands);

    /// Sets the records that the form shows.
    void Show(std::vector<Subject> subjects);
    void SetCanApply(bool can);

  private:
    struct Menu {
        QMenu* menu = nullptr;
        RecordMenu which = RecordMenu::Record;
        QAction* end = nullptr; ///< what is added comes before this
        std::vector<QAction*> added;
    };

    void MakeRecordMenu(QDialog& form, QMenuBar& bar, RecordKind kind);
    void MakeMenu(QDialog& form, QMenuBar& bar, RecordMenu which, const QString& title);
    void MakePages(QDialog& form, RecordKind kind);
    void Fill(Menu& menu);

    Commands commands_;
    std::vector<Subject> subjects_;
    std::array<Menu, 3> menus_;
    QAction* apply_ = nullptr;
    std::vector<std::pair<QWidget*, std::string>> pages_;
};

/// Returns the title with a mnemonic that is free on the form; without a mnemonic if all letters
/// are used.
QString WithFreeMnemonic(const QWidget& form, const QString& title);

} // namespace core::forms
