#include "documents/screens/DocMenus.h"

#include <QMenu>

#include "core/RecordKinds.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/RecordAdditions.h"
#include "documents/MergeSource.h"
#include "documents/mDocManagement.h"
#include "platform/qt/Text.h"

namespace documents::screens {

using core::forms::Guarded;
using core::forms::MenuFilling;
using core::forms::RecordMenu;

namespace {

void AddLetters(const MenuFilling& filling, const std::function<void()>& manage) {
    if (filling.subjects.empty()) return;
    // A building's letters are merged with the unit that its form shows.
    const std::size_t subject = filling.subjects.size() - 1;
    const core::RecordKind kind = DocKindOf(filling.subjects[subject].kind);
    if (!HasMergeSource(kind)) return;
    // A new record gets its id only when it is saved.
    const auto choose = [subjects = &filling.subjects, save = filling.save, subject,
                         kind](std::int32_t idDoc) {
        if (!save() || subject >= subjects->size()) return;
        const std::int32_t id = (*subjects)[subject].id;
        if (id != 0) OpenDoc(kind, id, idDoc);
    };
    if (AddDocItems(filling.menu, kind, choose))
        filling.menu.addSeparator()->setObjectName(QStringLiteral("mnuDocSep1"));
    QAction* const list = filling.menu.addAction(QObject::tr("Document &Management"));
    list->setObjectName(QStringLiteral("mnuDocMgmt"));
    QObject::connect(list, &QAction::triggered, list, [manage] { Guarded(manage); });
}

} // namespace

bool AddDocItems(QMenu& menu, core::RecordKind kind,
                 const std::function<void(std::int32_t idDoc)>& choose) {
    int number = 0;
    for (const DocTemplate& letter : DocTemplatesOf(kind)) {
        QString text = platform::qt::ToScreen(letter.description);
        text.replace(u'&', QLatin1String("&&"));
        QAction* const item =
            menu.addAction(QStringLiteral("&%1. %2").arg(QString::number(++number), text));
        item->setObjectName(QStringLiteral("mnuDocItem"));
        item->setProperty("tag", letter.id);
        QObject::connect(item, &QAction::triggered, item,
                         [choose, id = letter.id] { Guarded([&] { choose(id); }); });
    }
    return number > 0;
}

void RegisterDocMenus(std::function<void()> manage) {
    core::forms::RegisterRecordMenu(
        RecordMenu::Documents, "documents.letters",
        [manage = std::move(manage)](const MenuFilling& filling) { AddLetters(filling, manage); });
}

} // namespace documents::screens
