#pragma once

#include <QMainWindow>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>

#include "core/DayChange.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "shell/Availability.h"
#include "shell/RunDigest.h"
#include "shell/ShutDown.h"
#include "shell/screens/Commands.h"

class QAction;
class QActionGroup;
class QLabel;
class QTimer;

namespace Ui {
class frmKestrom;
}

namespace shell::screens {

class HomePage;
class SearchEverything;
class ViewPanel;

/// The functions of the program around it that the main window uses.
struct WindowServices {
    Commands commands;
    /// Returns whether the records of a kind have an editor.
    std::function<bool(core::RecordKind kind)> hasEditor;
    /// Opens a report definition in the viewer; without it nothing can be printed.
    std::function<void(const std::filesystem::path& definition)> viewReport;
    /// Returns the status bar's text about an overdue backup; empty if none is due. May be unset.
    std::function<std::string()> backupNotice;
    /// The steps of shutting down that aren't the window's own. Without startBackup there is no
    /// backup.
    ShutDownSteps end;
};

/// The window that stays open: the home page or the records of one kind, and the menus that reach
/// every other screen. Closing it ends the program.
class frmKestrom : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmKestrom(WindowServices services);
    ~frmKestrom() override;

    /// Opens on the home page. `digest` holds what the daily run has posted.
    void Setup(RunDigest digest);
    /// Changes the view: to a kind of records, or to the home page (the kind of alerts).
    void SetSelectedDb(core::RecordKind kind);
    void NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id);
    void EnableEditButtons();
    /// Called by the day-change timer.
    void Tick();

    core::RecordKind SelectedDb() const { return selectedDb_; }
    std::int32_t SelectedId() const;
    bool IsBackupOnExit() const;
    bool HasEnded() const { return hasEnded_; }

    /// Ends the program in order without asking.
    void EndUnasked();
    /// Brings the window in front of all others.
    void ComeToFront();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void SetUpActions();
    void SetUpPages();
    void ConnectCategories();
    void ConnectCommands();
    void ConnectOwnCommands();
    /// Makes a menu item do this work; errors are shown.
    void On(const QString& item, const std::function<void()>& work);
    void MakeSubmenu(QAction& item);
    Selection Selected() const;

    void Initialise();
    void ShowExtraItems();
    void ShowTitle();
    void ShowStatus();
    void ShowBackupNotice();
    WindowState State() const;
    void RefreshHome();
    bool IsBusy() const;
    void End();

    void EditSelected();
    void PrintGrid();
    static void RestoreTransCategories();
    void OpenHelp(const QString& topic);

    WindowServices services_;
    std::unique_ptr<Ui::frmKestrom> ui_;
    QActionGroup* categories_;
    HomePage* home_;
    ViewPanel* view_;
    QLabel* status_;
    QLabel* narrowed_;
    QLabel* backup_;
    QTimer* tmr_;
    QTimer* homeRefresh_;
    SearchEverything* search_;
    RunDigest digest_;
    core::DayChange dayChange_;
    core::RecordKind selectedDb_;
    bool loading_ = false;
    bool updating_ = false;
    bool hasEnded_ = false;
    bool endsUnasked_ = false;
    core::NotifyToken token_;
};

} // namespace shell::screens
