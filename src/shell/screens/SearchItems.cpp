#include "shell/screens/SearchItems.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QRegularExpression>
#include <QTabWidget>
#include <memory>

#include "core/Globals.h"
#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/values/Errors.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "reports/screens/frmReports.h"
#include "shell/screens/frmConfig.h"
#include "shell/screens/frmPreferences.h"

namespace shell::screens {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

/// Returns the text of a control without its mnemonic mark and without the characters that end it.
QString Plain(QString text) {
    text.remove(QRegularExpression(QStringLiteral("&(?!&)")));
    text.replace(QLatin1String("&&"), QLatin1String("&"));
    while (text.endsWith(QLatin1Char(':')) || text.endsWith(QLatin1String("...")))
        text.chop(text.endsWith(QLatin1Char(':')) ? 1 : 3);
    return text.trimmed();
}

void Trigger(const QMainWindow& window, const char* item) {
    if (auto* const action = window.findChild<QAction*>(QLatin1String(item))) action->trigger();
}

/// Returns the screen of this class that is open; null if there is none.
template <class Screen>
Screen* OpenScreen() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const screen = qobject_cast<Screen*>(window);
        if (screen != nullptr && screen->isVisible()) return screen;
    }
    return nullptr;
}

QWidget* OpenScreenNamed(const char* name) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == QLatin1String(name)) return window;
    }
    return nullptr;
}

void ShowCategory(const QString& category) {
    const QWidget* const screen = OpenScreenNamed("frmTransCategory");
    if (screen == nullptr) return;
    for (QListWidget* const list : screen->findChildren<QListWidget*>()) {
        const auto found = list->findItems(category, Qt::MatchExactly);
        if (found.isEmpty()) continue;
        list->setCurrentItem(found.front());
        list->setFocus();
        return;
    }
}

bool AsksNothing(const reports::ReportDef& report) {
    return report.SelectItem == core::kNone && !report.SelectDetail && !report.SelectYear &&
           report.DateRange != reports::DateRange::Select;
}

void OpenReport(const QMainWindow& window, int index) {
    const reports::ReportDef* const report = reports::FindReport(index);
    if (report == nullptr) return;
    if (AsksNothing(*report) && reports::HasReportViewer()) return reports::RunReport(index);
    Trigger(window, "mnuGeneralReports");
    if (auto* const catalogue = OpenScreen<reports::screens::frmReports>())
        catalogue->Select(index);
}

void RunCommand(const QAction& action) {
    if (action.isEnabled()) return const_cast<QAction&>(action).trigger();
    platform::TheDialogs().ShowMessage(FromScreen(Plain(action.text())),
                                       FromScreen(action.toolTip()), platform::Icon::Information);
}

void AddMenu(const QMenu& menu, const QString& path, std::vector<SearchItem>& items) {
    for (QAction* const action : menu.actions()) {
        if (action->isSeparator() || !action->isVisible()) continue;
        // The items of a submenu are known only when it opens.
        if (action->menu() != nullptr || action->objectName() == QLatin1String("mnuSearch"))
            continue;
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        const QString place = key.isEmpty() ? path : QStringLiteral("%1, %2").arg(path, key);
        items.push_back({{.group = "Commands",
                          .icon = "show",
                          .title = FromScreen(Plain(action->text())),
                          .detail = FromScreen(place),
                          .words = FromScreen(action->toolTip())},
                         [action = QPointer<QAction>(action)] {
                             if (action) RunCommand(*action);
                         }});
    }
}

void Focus(QWidget& control) {
    for (QWidget* page = &control; page != nullptr; page = page->parentWidget()) {
        for (QWidget* above = page->parentWidget(); above != nullptr;
             above = above->parentWidget()) {
            if (auto* const tabs = qobject_cast<QTabWidget*>(above);
                tabs && tabs->indexOf(page) >= 0)
                tabs->setCurrentWidget(page);
        }
    }
    control.setFocus(Qt::TabFocusReason);
}

/// Returns the caption of the page that a control is on; empty if it isn't on a page.
QString PageOf(const QWidget& control) {
    for (const QWidget* page = &control; page != nullptr; page = page->parentWidget()) {
        for (QWidget* above = page->parentWidget(); above != nullptr;
             above = above->parentWidget()) {
            const auto* const tabs = qobject_cast<QTabWidget*>(above);
            const int index = tabs ? tabs->indexOf(const_cast<QWidget*>(page)) : -1;
            if (index >= 0) return Plain(tabs->tabText(index));
        }
    }
    return {};
}

/// Adds the controls of a screen that have a caption. The screen is created for this, but not
/// shown.
void AddControls(QMainWindow& window, const QWidget& screen, const char* command,
                 std::vector<SearchItem>& items) {
    const QString name = screen.objectName();
    const QString place = Plain(screen.windowTitle());
    const auto add = [&](const QString& caption, const QWidget& control) {
        if (Plain(caption).isEmpty() || control.objectName().isEmpty()) return;
        const QString page = PageOf(control);
        items.push_back(
            {{.group = "Settings",
              .icon = "settings",
              .title = FromScreen(Plain(caption)),
              .detail = FromScreen(page.isEmpty() ? place : place + QStringLiteral(", ") + page),
              .words = FromScreen(control.toolTip()) + " settings"},
             [&window, command, name, control = control.objectName()] {
                 Trigger(window, command);
                 const QWidget* const open = OpenScreenNamed(FromScreen(name).c_str());
                 QWidget* const chosen = open ? open->findChild<QWidget*>(control) : nullptr;
                 if (chosen) Focus(*chosen);
             }});
    };
    for (const QWidget* const control : screen.findChildren<QWidget*>()) {
        if (const auto* const box = qobject_cast<const QCheckBox*>(control)) add(box->text(), *box);
        const auto* const label = qobject_cast<const QLabel*>(control);
        if (label && label->buddy()) add(label->text(), *label->buddy());
    }
}

} // namespace

void AddCategories(QMainWindow& window, std::vector<SearchItem>& items) {
    try {
        platform::Recordset rows = core::Read("SELECT Category, IEN FROM TransCategory ORDER BY 1");
        for (; !rows.Eof(); rows.MoveNext()) {
            const std::string category = platform::TextOf(rows["Category"]);
            const auto ien = static_cast<std::size_t>(platform::ShortOf(rows["IEN"]));
            const bool hasClass = ien < core::TaxClasses.size();
            items.push_back({{.group = "Categories",
                              .icon = "financial",
                              .title = category,
                              .detail = std::string(hasClass ? core::TaxClasses.at(ien) : ""),
                              .words = "category"},
                             [&window, category] {
                                 Trigger(window, "mnuTransCategory");
                                 ShowCategory(ToScreen(category));
                             }});
        }
    } catch (const platform::Error&) {
        return; // books that can't be read have no categories; the search says so
    }
}

void AddReports(QMainWindow& window, std::vector<SearchItem>& items) {
    for (int index = 1; index <= reports::ReportCount(); ++index) {
        const reports::ReportDef& report = *reports::FindReport(index);
        if (report.Kind != reports::ReportKind::Report) continue;
        items.push_back({{.group = "Reports",
                          .icon = "reports",
                          .title = report.Description,
                          .detail = report.Notes,
                          .words = "report"},
                         [&window, index] { OpenReport(window, index); }});
    }
}

void AddCommands(QMainWindow& window, std::vector<SearchItem>& items) {
    for (const QAction* const action : window.menuBar()->actions()) {
        if (action->menu()) AddMenu(*action->menu(), Plain(action->text()), items);
    }
}

void AddSettings(QMainWindow& window, std::vector<SearchItem>& items) {
    const std::unique_ptr<QWidget> preferences = std::make_unique<frmPreferences>();
    AddControls(window, *preferences, "mnuPreferences", items);
    const std::unique_ptr<QWidget> configuration = std::make_unique<frmConfig>();
    configuration->setWindowTitle(QObject::tr("Configuration"));
    AddControls(window, *configuration, "mnuGlobalConfig", items);
}

} // namespace shell::screens
