#include "kestrom/Wiring.h"

#include <QApplication>

#include "books/screens/frmAutoEvent.h"
#include "books/screens/frmAutoEventList.h"
#include "books/screens/frmMileage.h"
#include "books/screens/frmTransCategory.h"
#include "books/screens/frmTransaction.h"
#include "core/EditRecord.h"
#include "core/MessagePump.h"
#include "core/RecordKinds.h"
#include "core/forms/OpenForms.h"
#include "core/forms/frmHelp.h"
#include "documents/screens/DocMenus.h"
#include "documents/screens/FilesPage.h"
#include "documents/screens/frmDocMgmt.h"
#include "exchange/screens/frmCheck.h"
#include "exchange/screens/frmFinExport.h"
#include "exchange/screens/frmPort.h"
#include "kestrom/Documents.h"
#include "kestrom/Reports.h"
#include "leases/screens/frmLease.h"
#include "leases/screens/frmLeaseWizard.h"
#include "leases/screens/frmRentLog.h"
#include "leases/screens/frmRentPayment.h"
#include "mortgages/screens/frmMortgage.h"
#include "mortgages/screens/frmMortgagePayment.h"
#include "mortgages/screens/frmMortgageWizard.h"
#include "mortgages/screens/frmMtgLog.h"
#include "outlook/screens/frmLookAhead.h"
#include "platform/qt/QtDialogs.h"
#include "records/screens/frmAccount.h"
#include "records/screens/frmAppliance.h"
#include "records/screens/frmBuilding.h"
#include "records/screens/frmContent.h"
#include "records/screens/frmIncident.h"
#include "records/screens/frmManagerLink.h"
#include "records/screens/frmOwnerLink.h"
#include "records/screens/frmRoom.h"
#include "records/screens/frmSvcContract.h"
#include "records/screens/frmTenant.h"
#include "records/screens/frmWoItem.h"
#include "records/screens/frmWorkOrder.h"
#include "reports/screens/frmReportViewer.h"
#include "reports/screens/frmReports.h"
#include "shell/screens/frmAbout.h"
#include "shell/screens/frmConfig.h"
#include "shell/screens/frmDBExplorer.h"
#include "shell/screens/frmPosted.h"
#include "shell/screens/frmPreferences.h"

namespace kestrom {

namespace {

/// Opens a screen that exists only once, or brings it to the front.
template <class Screen>
void OpenOnce() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (qobject_cast<Screen*>(window) == nullptr || !window->isVisible()) continue;
        if (window->isMinimized()) window->showNormal();
        window->raise();
        window->activateWindow();
        return;
    }
    (new Screen)->Setup();
}

/// Registers the editor of a record that belongs to another one.
template <class Screen>
void RegisterChild(core::RecordKind kind) {
    core::RegisterOpener(kind, [](const core::EditRequest& request) {
        (new Screen)->Setup(request.id, request.parent1);
    });
}

template <class Screen>
shell::screens::Command Opening() {
    return [](const shell::screens::Selection&) { OpenOnce<Screen>(); };
}

} // namespace

void RegisterPlatform() {
    platform::SetDialogs(platform::qt::MakeDialogs());
    platform::SetChoosers(platform::qt::MakeChoosers());
    platform::SetDesktop(platform::qt::MakeDesktop());
    core::SetMessagePump([] { QCoreApplication::processEvents(); });
    core::forms::RegisterOpenForms();
    core::forms::RegisterHelpWindow();
}

void RegisterEditors() {
    for (const core::RecordKind kind :
         {core::kAccount, core::kBuildingOwnerAccount, core::kBuildingManagerAccount,
          core::kVendorAccount, core::kInsuranceAccount, core::kMortgageeAccount,
          core::kUtilityAccount}) {
        core::RegisterOpener(kind, [kind](const core::EditRequest& request) {
            (new records::screens::frmAccount)->Setup(request.id, core::AccountTypeOfKind(kind));
        });
    }
    core::RegisterOpener(core::kTenant, [](const core::EditRequest& request) {
        (new records::screens::frmTenant)->Setup(request.id);
    });
    core::RegisterOpener(core::kIncident, [](const core::EditRequest& request) {
        (new records::screens::frmIncident)->Setup(request.id, request.parent1);
    });
    core::RegisterTransactionOpener(
        core::TransactionEditor::Transaction,
        [](const core::EditRequest& request, const core::TransactionPlace&) {
            books::screens::TransactionSetup setup;
            setup.idTransaction = request.id;
            setup.idTemplate = request.parent2;
            (new books::screens::frmTransaction)->Setup(setup);
        });
    core::RegisterTransactionOpener(
        core::TransactionEditor::RentPayment,
        [](const core::EditRequest& request, const core::TransactionPlace& place) {
            (new leases::screens::frmRentPayment)
                ->Setup(request.id, place.idLease, core::TransactionClass::Rent,
                        leases::LeaseUpdate::Yes);
        });
    core::RegisterTransactionOpener(
        core::TransactionEditor::MortgagePayment,
        [](const core::EditRequest& request, const core::TransactionPlace& place) {
            (new mortgages::screens::frmMortgagePayment)->Setup(request.id, place.idMortgage);
        });
    RegisterChild<mortgages::screens::frmMortgage>(core::kMortgage);
    RegisterChild<mortgages::screens::frmMtgLog>(core::kMortgageLog);
    core::RegisterOpener(core::kLease, [](const core::EditRequest& request) {
        (new leases::screens::frmLease)->Setup(request.id);
    });
    core::RegisterOpener(core::kRentLog, [](const core::EditRequest& request) {
        (new leases::screens::frmRentLog)
            ->Setup(request.id, request.parent1,
                    core::TransactionClass{static_cast<std::int16_t>(request.parent3)});
    });
    core::RegisterOpener(core::kAutoEvent, [](const core::EditRequest& request) {
        (new books::screens::frmAutoEvent)->Setup(request.id);
    });
    core::RegisterOpener(core::kMileage, [](const core::EditRequest& request) {
        (new books::screens::frmMileage)->Setup(request.id);
    });
    RegisterChild<records::screens::frmOwnerLink>(core::kOwner);
    RegisterChild<records::screens::frmManagerLink>(core::kManager);
    RegisterChild<records::screens::frmRoom>(core::kRoom);
    RegisterChild<records::screens::frmContent>(core::kContent);
    RegisterChild<records::screens::frmAppliance>(core::kAppliance);
    core::RegisterOpener(core::kWorkOrder, [](const core::EditRequest& request) {
        (new records::screens::frmWorkOrder)->Setup(request.id, request.parent1);
    });
    RegisterChild<records::screens::frmWoItem>(core::kWorkOrderHistory);
    core::RegisterOpener(core::kSvcContract, [](const core::EditRequest& request) {
        (new records::screens::frmSvcContract)->Setup(request.id, request.parent1, request.parent3);
    });
    core::RegisterOpener(core::kBuilding, records::screens::OpenBuilding);
    core::RegisterOpener(core::kUnit, records::screens::OpenBuilding);
    documents::screens::RegisterDocMenus(OpenOnce<documents::screens::frmDocMgmt>);
    documents::screens::RegisterFilesPage();
}

shell::screens::Commands MenuCommands() {
    shell::screens::Commands commands;
    commands.Add(QStringLiteral("mnuConfig"), Opening<shell::screens::frmConfig>());
    commands.Add(QStringLiteral("mnuGlobalConfig"), Opening<shell::screens::frmConfig>());
    commands.Add(QStringLiteral("mnuGeneralReports"), Opening<reports::screens::frmReports>());
    reports::screens::SetCatalogueOpener(OpenOnce<reports::screens::frmReports>);
    AddReportCommands(commands);
    commands.Add(QStringLiteral("mnuPreferences"), Opening<shell::screens::frmPreferences>());
    commands.Add(QStringLiteral("mnuLeaseWizard"), Opening<leases::screens::frmLeaseWizard>());
    commands.Add(QStringLiteral("mnuMortgageWizard"),
                 Opening<mortgages::screens::frmMortgageWizard>());
    commands.Add(QStringLiteral("mnuPayMortgage"), [](const shell::screens::Selection& selection) {
        if (selection.id == 0) return;
        (new mortgages::screens::frmMortgagePayment)->Setup(0, selection.id);
    });
    commands.Add(QStringLiteral("mnuPayRent"), [](const shell::screens::Selection& selection) {
        if (selection.id == 0) return;
        (new leases::screens::frmRentPayment)
            ->Setup(0, selection.id, core::TransactionClass::Rent, leases::LeaseUpdate::Yes);
    });
    commands.Add(QStringLiteral("mnuFinExport"), Opening<exchange::screens::frmFinExport>());
    commands.Add(QStringLiteral("mnuPort"), Opening<exchange::screens::frmPort>());
    commands.Add(QStringLiteral("mnuCheck"), Opening<exchange::screens::frmCheck>());
    commands.Add(QStringLiteral("mnuAutoEvents"), Opening<books::screens::frmAutoEventList>());
    commands.Add(QStringLiteral("mnuMileage"), Opening<books::screens::frmMileage>());
    commands.Add(QStringLiteral("mnuLookAhead"), Opening<outlook::screens::frmLookAhead>());
    commands.Add(QStringLiteral("mnuPosted"), Opening<shell::screens::frmPosted>());
    commands.Add(QStringLiteral("mnuTransCategory"), Opening<books::screens::frmTransCategory>());
    AddDocumentCommands(commands);
    for (const char* const item : {"mnuDocMgmt", "mnuPrintDocMgmt"})
        commands.Add(QString::fromLatin1(item), Opening<documents::screens::frmDocMgmt>());
    commands.Add(QStringLiteral("mnuDBExplorer"), Opening<shell::screens::frmDBExplorer>());
    commands.Add(QStringLiteral("mnuHelpAbout"), Opening<shell::screens::frmAbout>());
    return commands;
}

} // namespace kestrom
