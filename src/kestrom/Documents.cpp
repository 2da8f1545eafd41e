#include "kestrom/Documents.h"

#include <QMenu>

#include "core/RecordKinds.h"
#include "documents/ShowPictures.h"
#include "documents/mDocManagement.h"
#include "documents/screens/DocMenus.h"

namespace kestrom {

using shell::screens::Selection;

namespace {

void FillLetters(QMenu& menu, const std::function<Selection()>& selection) {
    const auto choose = [selection](std::int32_t idDoc) {
        const Selection chosen = selection();
        documents::OpenDocs(documents::DocKindOf(chosen.kind), chosen.ids, idDoc);
    };
    const core::RecordKind kind = documents::DocKindOf(selection().kind);
    if (documents::screens::AddDocItems(menu, kind, choose)) return;
    QAction* const nothing = menu.addAction(QObject::tr("None for these records"));
    nothing->setEnabled(false);
    nothing->setToolTip(QObject::tr("Document Management lists the templates of letters"));
}

/// Shows the pictures of the selected record; the slide show of a unit includes the pictures of its
/// building.
void ShowSelectedPictures(const Selection& selection) {
    const bool isUnit = selection.kind == core::kUnit;
    documents::ShowPictures(isUnit ? core::kUnitWithBuilding : selection.kind, selection.id);
}

} // namespace

void AddDocumentCommands(shell::screens::Commands& commands) {
    commands.Add(QStringLiteral("mnuPhotoReel"), ShowSelectedPictures);
    commands.AddSubmenu(QStringLiteral("mnuPrintDoc"), FillLetters);
}

} // namespace kestrom
