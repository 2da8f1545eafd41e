#include "reports/screens/RecordReports.h"

#include <QMenu>

#include "core/RecordKinds.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/RecordAdditions.h"
#include "platform/qt/Text.h"
#include "reports/PrintReport.h"
#include "reports/ReportMenus.h"

namespace reports::screens {

using core::forms::MenuFilling;
using core::forms::RecordMenu;
using core::forms::Subject;

namespace {

/// Returns a catalogue caption for a menu: an "&" in the description is shown, and only the one of
/// the number marks the key.
QString MenuText(const std::string& caption) {
    QString text = platform::qt::ToScreen(caption);
    const bool isNumbered = text.startsWith(QLatin1String("(&"));
    text.replace(u'&', QLatin1String("&&"));
    if (isNumbered) text.replace(0, 3, QLatin1String("(&"));
    return text;
}

QAction* Add(const MenuFilling& filling, const QString& text, const char* name, int index,
             std::size_t subject) {
    QAction* const action = filling.menu.addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setData(index);
    const bool canRun = index != 0 && HasReportViewer();
    action->setEnabled(canRun);
    if (index == 0) {
        action->setToolTip(QObject::tr("No report of this form is marked as its print report"));
    } else if (!canRun) {
        action->setToolTip(QObject::tr("There is no report viewer"));
    }
    // By the time the item is chosen the form may show another record, or a saved one.
    QObject::connect(action, &QAction::triggered, action,
                     [subjects = &filling.subjects, subject, index, save = filling.save] {
                         core::forms::Guarded([&] {
                             if (!save()) return;
                             if (subject < subjects->size())
                                 PrintReport((*subjects)[subject].id, index);
                         });
                     });
    return action;
}

void AddPrint(const MenuFilling& filling) {
    const bool isBuilding = filling.subjects.size() > 1;
    for (std::size_t i = 0; i < filling.subjects.size(); ++i) {
        const RecordForm form = FormOfKind(filling.subjects[i].kind);
        if (form == RecordForm::None) continue;
        const char* const name = !isBuilding ? "mnuPrint"
                                 : i == 0    ? "mnuPrintBuilding"
                                             : "mnuPrintUnit";
        const QString text = !isBuilding ? QObject::tr("&Print")
                             : i == 0    ? QObject::tr("&Print Building")
                                         : QObject::tr("P&rint Unit");
        Add(filling, text, name, ReportsOf(form).print, i);
    }
}

void AddReports(const MenuFilling& filling) {
    const bool isBuilding = filling.subjects.size() > 1;
    bool separated = false;
    for (std::size_t i = 0; i < filling.subjects.size(); ++i) {
        const RecordForm form = FormOfKind(filling.subjects[i].kind);
        if (form == RecordForm::None) continue;
        const ReportMenu menu = !isBuilding ? ReportsOf(form)
                                : i == 0    ? ReportsOfBuilding()
                                            : ReportsOfSelectedUnit();
        const char* const name = !isBuilding ? "mnuReportItem"
                                 : i == 0    ? "mnuReportItemB"
                                             : "mnuReportItemU";
        if (separated && !menu.items.empty())
            filling.menu.addSeparator()->setObjectName(QStringLiteral("mnuReportSepU"));
        for (const ReportMenuItem& item : menu.items)
            Add(filling, MenuText(item.caption), name, item.index, i);
        separated = separated || !menu.items.empty();
    }
}

void AddReceipts(const MenuFilling& filling) {
    for (std::size_t i = 0; i < filling.subjects.size(); ++i) {
        if (filling.subjects[i].kind != core::kTransaction) continue;
        for (const ReportMenuItem& item : ReceiptsOf(RecordForm::Transaction))
            Add(filling, MenuText(item.caption), "mnuReceiptItem", item.index, i);
    }
}

} // namespace

void RegisterReportMenus() {
    core::forms::RegisterRecordMenu(RecordMenu::Record, "reports.print", AddPrint);
    core::forms::RegisterRecordMenu(RecordMenu::Reports, "reports.items", AddReports);
    core::forms::RegisterRecordMenu(RecordMenu::Reports, "reports.receipts", AddReceipts);
}

} // namespace reports::screens
