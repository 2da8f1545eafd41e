#include "records/screens/RelatedDBs.h"

#include <QLabel>

#include "core/RecordKinds.h"
#include "platform/qt/Text.h"

namespace records::screens {

RelatedDBs::RelatedDBs(QWidget* parent) : RelatedPanel(parent), caption_(new QLabel(this)) {
    caption_->setObjectName(QStringLiteral("lblCaption"));
    QFont bold = caption_->font();
    bold.setBold(true);
    caption_->setFont(bold);
    SetHead(caption_);
    Load(core::kNone, 0);
}

void RelatedDBs::Load(core::RecordKind dbType, std::int32_t id) {
    const RelatedList* const list = SingleList(dbType);
    caption_->setText(platform::qt::ToScreen(list ? list->caption : kNoDbType));
    List().setAccessibleName(caption_->text());
    ShowList(list, {dbType, id});
}

} // namespace records::screens
