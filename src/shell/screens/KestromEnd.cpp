// Closes the main window and ends the program.

#include <QCloseEvent>
#include <QTimer>

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
#include "core/forms/OpenForms.h"
#include "core/forms/WindowPlace.h"
#include "shell/screens/HomePage.h"
#include "shell/screens/SearchEverything.h"
#include "shell/screens/ViewPanel.h"
#include "shell/screens/frmKestrom.h"

namespace shell::screens {

namespace {

constexpr int kTryAgainMs = 50;

} // namespace

/// Returns whether the books are busy with work that processes window messages.
bool frmKestrom::IsBusy() const {
    return loading_ || updating_ || core::App().Connection.InUnitOfWork();
}

void frmKestrom::closeEvent(QCloseEvent* event) {
    if (hasEnded_) {
        event->accept();
        return;
    }
    event->ignore();
    if (IsBusy()) {
        QTimer::singleShot(kTryAgainMs, this, &frmKestrom::close);
        return;
    }
    if (!core::forms::MayCloseAllForms() || !home_->AskToClose()) return;
    End();
    event->accept();
}

void frmKestrom::EndUnasked() {
    if (hasEnded_) return;
    endsUnasked_ = true;
    if (IsBusy()) {
        QTimer::singleShot(kTryAgainMs, this, &frmKestrom::EndUnasked);
        return;
    }
    End();
    close();
}

void frmKestrom::End() {
    hasEnded_ = true;
    tmr_->stop();
    homeRefresh_->stop();
    if (selectedDb_ != core::kAlert) view_->Remember();
    ShutDownSteps steps = services_.end;
    steps.saveWindow = [this] { core::forms::SaveWindow(*this); };
    steps.saveHomePage = [this] { home_->SaveNotesOrRescue(); };
    steps.closeSession = [this] {
        view_->Release();
        search_->Release();
        core::CloseDatabase(core::App().Connection);
    };
    steps.unloadForms = [] { core::forms::CloseAllForms(); };
    steps.isBackupWanted = [this, isDue = services_.end.isBackupWanted] {
        // At the end of a desktop session nobody may be there to press Start.
        return !endsUnasked_ && (IsBackupOnExit() || (isDue && isDue()));
    };
    ShutDown(steps);
}

} // namespace shell::screens
