// The work of the main window's buttons and menu items.

#include <QActionGroup>
#include <QMenu>
#include <QStandardPaths>
#include <array>

#include "core/AppPath.h"
#include "core/EditRecord.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Settings.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/dialogs/Desktop.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "platform/system/Process.h"
#include "removal/DeleteRecord.h"
#include "shell/GridReport.h"
#include "shell/screens/HomePage.h"
#include "shell/screens/MenuItems.h"
#include "shell/screens/ResetSampleCommand.h"
#include "shell/screens/SearchEverything.h"
#include "shell/screens/ViewPanel.h"
#include "shell/screens/frmKestrom.h"
#include "store/TransCategories.h"
#include "ui_frmKestrom.h"

namespace shell::screens {

namespace {

struct Category {
    const char* tag;
    core::RecordKind kind;
};

// MILEAGE has no button: trips have a screen of their own.
constexpr std::array<Category, 9> kCategories = {{{"ALERTS", core::kAlert},
                                                  {"ACCOUNTS", core::kAccount},
                                                  {"FINANCIAL", core::kTransaction},
                                                  {"LEASES", core::kLease},
                                                  {"UNITS", core::kUnit},
                                                  {"TENANTS", core::kTenant},
                                                  {"MORTGAGES", core::kMortgage},
                                                  {"WORKORDERS", core::kWorkOrder},
                                                  {"MILEAGE", core::kMileage}}};

constexpr std::string_view kDownloads = "https://www.vestrel.example/downloads";
constexpr std::string_view kForum = "https://forum.vestrel.example/";

std::string CalculatorFile() {
    return core::SiblingProgram("SumDesk.exe").string();
}

// Returns the tool named in the settings, or else one that desktops provide.
std::string SystemInformationTool() {
    const std::string_view tools = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
    const std::string_view location = R"(SOFTWARE\Microsoft\Shared Tools Location)";
    std::string tool = core::GetRegString(tools, "PATH", "");
    if (tool.empty()) {
        tool = core::GetRegString(location, "MSINFO", "");
        if (!tool.empty()) tool = platform::AddBackslash(tool) + "MSINFO32.EXE";
    }
    if (!tool.empty() && platform::FileExists(tool)) return tool;
    for (const char* const known : {"kinfocenter", "hardinfo"}) {
        const QString found = QStandardPaths::findExecutable(QString::fromLatin1(known));
        if (!found.isEmpty()) return platform::qt::FromScreen(found);
    }
    return {};
}

} // namespace

void frmKestrom::SetUpActions() {
    ui_->mnuDatabaseSep->setSeparator(true);
    for (QAction* const action : findChildren<QAction*>()) {
        const QString picture = action->property("picture").toString();
        if (!picture.isEmpty()) action->setIcon(platform::qt::LoadIcon(picture));
        action->setIconVisibleInMenu(false);
        action->setAutoRepeat(false); // a held key gives a command once
        SetTip(*action);
    }
    for (QMenu* const menu : menuBar()->findChildren<QMenu*>())
        ShowReasons(*menu);
}

void frmKestrom::ConnectCategories() {
    for (QAction* const action : findChildren<QAction*>()) {
        const QString tag = action->property("tag").toString();
        for (const Category& category : kCategories) {
            if (tag != QLatin1String(category.tag)) continue;
            action->setData(core::KindNumber(category.kind));
            categories_->addAction(action);
            connect(action, &QAction::triggered, this, [this, kind = category.kind] {
                core::forms::Guarded([&] { SetSelectedDb(kind); });
            });
        }
    }
}

void frmKestrom::On(const QString& item, const std::function<void()>& work) {
    auto* const action = findChild<QAction*>(item);
    Q_ASSERT(action != nullptr);
    SetAvailable(*action, {});
    connect(action, &QAction::triggered, this, [work] { core::forms::Guarded(work); });
}

void frmKestrom::ConnectCommands() {
    // An item without a function is disabled.
    for (QAction* const action : findChildren<QAction*>()) {
        const QString item = action->objectName();
        if (!item.startsWith(QLatin1String("mnu")) || action->menu() != nullptr) continue;
        if (services_.commands.Submenu(item)) {
            MakeSubmenu(*action);
        } else if (services_.commands.Has(item)) {
            On(item, [this, item] { services_.commands.Run(item, Selected()); });
        } else if (!action->isSeparator()) {
            SetAvailable(*action, kNotInThisVersion);
        }
    }
    ConnectOwnCommands();
}

void frmKestrom::MakeSubmenu(QAction& item) {
    auto* const menu = new QMenu(this);
    item.setMenu(menu);
    SetAvailable(item, {});
    connect(menu, &QMenu::aboutToShow, this, [this, menu, name = item.objectName()] {
        core::forms::Guarded([&] {
            menu->clear();
            services_.commands.Submenu(name)(*menu, [this] { return Selected(); });
        });
    });
}

void frmKestrom::ConnectOwnCommands() {
    const auto name = [](const char* item) { return QString::fromLatin1(item); };
    On(name("mnuAdd"), [this] { core::EditRecord(selectedDb_, 0); });
    On(name("mnuEdit"), [this] { core::EditRecord(selectedDb_, SelectedId()); });
    On(name("mnuCopy"), [this] { core::EditRecord(selectedDb_, 0, 0, SelectedId()); });
    On(name("mnuDelete"), [this] { removal::DeleteRecord(selectedDb_, SelectedId()); });
    On(name("mnuRefreshSummary"), [this] { home_->Refresh(); });
    On(name("mnuRefresh"), [this] {
        if (selectedDb_ == core::kAlert) {
            home_->Refresh();
        } else {
            view_->Reload(ViewPanel::Cause::Choice);
        }
    });
    On(name("mnuSearch"), [this] { search_->Show(); });
    On(name("mnuPicture"), [this] {
        home_->SetPicture(ui_->mnuPicture->isChecked());
        SetSelectedDb(core::kAlert);
    });
    On(name("mnuFind"), [this] { view_->FindText(); });
    On(name("mnuCopyRows"), [this] { view_->CopyRows(); });
    On(name("mnuPrintGrid"), [this] { PrintGrid(); });
    On(name("mnuExit"), [this] { close(); });
    if (platform::FileExists(CalculatorFile())) {
        On(name("mnuCalculator"), [] { platform::StartDetached(CalculatorFile()); });
    } else {
        SetAvailable(*ui_->mnuCalculator, "The calculator SumDesk is not installed.");
    }
    if (!services_.commands.Has(name("mnuRestoreTransCategories"))) {
        On(name("mnuRestoreTransCategories"), RestoreTransCategories);
    }
    if (const auto tool = SystemInformationTool(); !tool.empty()) {
        On(name("mnuSysInfo"), [tool] { platform::StartDetached(tool); });
    } else {
        SetAvailable(*ui_->mnuSysInfo, "No system information program is installed.");
    }
    On(name("mnuResetSample"), [] { ResetOpenSample(core::SiblingProgram("vestrelctl")); });
    On(name("mnuHelpGettingStarted"), [this] { OpenHelp(QStringLiteral("gettingstarted")); });
    On(name("mnuHelpContents"), [this] { OpenHelp(QStringLiteral("contents")); });
    On(name("mnuHelpSearch"), [this] { OpenHelp(QString::fromLatin1(core::forms::kHelpSearch)); });
    On(name("mnuHelpDownloads"), [] { platform::TheDesktop().OpenWebPage(kDownloads); });
    On(name("mnuHelpUserForum"), [] { platform::TheDesktop().OpenWebPage(kForum); });
    SetAvailable(*ui_->mnuBackup,
                 services_.end.startBackup ? std::string_view() : kNotInThisVersion);
}

void frmKestrom::EditSelected() {
    if (ui_->mnuEdit->isEnabled()) ui_->mnuEdit->trigger();
}

void frmKestrom::PrintGrid() {
    if (services_.viewReport) services_.viewReport(WriteGridReport(view_->PrintSql()));
}

// The restoration only adds the missing categories, though the question says more.
void frmKestrom::RestoreTransCategories() {
    const bool agreed = platform::TheDialogs().AskYesNo(
        "Confirm Action",
        "Restoring default transaction categories will erase the currently defined categories \n"
        "and replace them with the default ones. Are you sure you want to do this?",
        platform::Icon::Question);
    if (!agreed) return;
    store::InitTransCategories(core::App().Connection);
    core::NotifyAll(core::kTransCategory, core::kRecordsChanged, 0);
    platform::TheDialogs().ShowMessage("Success",
                                       "Default Transaction Categories have been restored.",
                                       platform::Icon::Information);
}

void frmKestrom::OpenHelp(const QString& topic) {
    core::forms::ShowHelpTopic(*this, topic);
}

} // namespace shell::screens
