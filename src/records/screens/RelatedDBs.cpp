#include "records/screens/RelatedDBs.h"

#include <QLabel>

#include "platform/qt/Text.h"

namespace records::screens {

RelatedDBs::RelatedDBs(QWidget* parent) : RelatedPanel(parent), caption_(new QLabel(this)) {
    caption_->setObjectName(QStringLiteral("lblCaption"));
    QFont bold = caption_->font();
    bold.setBold(true);
    caption_->setFont(bold);
    SetHead(caption_);
    Load(0, 0);
}

void RelatedDBs::Load(std::int16_t dbType, std::int32_t id) {
    const RelatedList* const list = SingleList(dbType);
    caption_->setText(platform::qt::ToScreen(list ? list->caption : kNoDbType));
    List().setAccessibleName(caption_->text());
    ShowList(list, {dbType, id});
}

} // namespace records::screens
