#include "platform/qt/preview/PageThumbnails.h"

#include <QScopedValueRollback>

#include "platform/qt/preview/ThumbnailModel.h"

namespace platform::qt {

PageThumbnails::PageThumbnails(QWidget* parent)
    : QListView(parent), model_(new ThumbnailModel(this)) {
    setModel(model_);
    setItemDelegate(new ThumbnailDelegate(*model_, this));
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Page thumbnails"));
}

PageThumbnails::~PageThumbnails() = default;

void PageThumbnails::SetDocument(const PrintedDocument* document, const FontBook* fonts) {
    const QScopedValueRollback quiet(quiet_, true);
    model_->SetDocument(document, fonts);
}

void PageThumbnails::PagesAdded() {
    model_->PagesAdded();
}

void PageThumbnails::ShowPage(int page) {
    const QScopedValueRollback quiet(quiet_, true);
    setCurrentIndex(model_->index(page));
}

void PageThumbnails::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!quiet_ && current.isValid()) Q_EMIT PageChosen(current.row());
}

} // namespace platform::qt
