#include "kestrom/Wiring.h"

#include <QApplication>

#include "books/screens/frmTransaction.h"
#include "core/EditRecord.h"
#include "core/MessagePump.h"
#include "core/RecordKinds.h"
#include "core/screens/OpenForms.h"
#include "core/screens/frmAbout.h"
#include "core/screens/frmConfig.h"
#include "core/screens/frmHelp.h"
#include "core/screens/frmPreferences.h"
#include "platform/qt/QtDialogs.h"
#include "records/screens/frmAccount.h"
#include "records/screens/frmIncident.h"
#include "records/screens/frmOwnerLink.h"
#include "records/screens/frmTenant.h"

namespace kestrom {

namespace {

/// Opens a screen of which there is only one; brings it to the front when it is open.
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
    core::screens::RegisterOpenForms();
    core::screens::RegisterHelpWindow();
}

void RegisterEditors() {
    for (const std::int16_t kind :
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
    core::RegisterOpener(core::kOwner, [](const core::EditRequest& request) {
        (new records::screens::frmOwnerLink)->Setup(request.id, request.parent1);
    });
}

shell::screens::Commands MenuCommands() {
    shell::screens::Commands commands;
    commands.Add(QStringLiteral("mnuConfig"), Opening<core::screens::frmConfig>());
    commands.Add(QStringLiteral("mnuGlobalConfig"), Opening<core::screens::frmConfig>());
    commands.Add(QStringLiteral("mnuPreferences"), Opening<core::screens::frmPreferences>());
    commands.Add(QStringLiteral("mnuHelpAbout"), Opening<core::screens::frmAbout>());
    return commands;
}

} // namespace kestrom
