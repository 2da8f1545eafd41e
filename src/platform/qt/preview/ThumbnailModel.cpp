#include "platform/qt/preview/ThumbnailModel.h"

#include <QPainter>

namespace platform::qt {

namespace {

constexpr int kLongSide = 130;
constexpr int kSpace = 6;

} // namespace

void ThumbnailModel::SetDocument(const PrintedDocument* document, const FontBook* fonts) {
    beginResetModel();
    document_ = document;
    painter_ = fonts ? std::make_unique<PagePainter>(*fonts) : nullptr;
    pictures_.clear();
    rows_ = document ? static_cast<int>(document->PageCount()) : 0;
    endResetModel();
}

void ThumbnailModel::PagesAdded() {
    const int count = document_ ? static_cast<int>(document_->PageCount()) : 0;
    if (count <= rows_) return;
    beginInsertRows({}, rows_, count - 1);
    rows_ = count;
    endInsertRows();
}

int ThumbnailModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant ThumbnailModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole) return QString::number(index.row() + 1);
    if (role == Qt::AccessibleTextRole) return tr("Page %1").arg(index.row() + 1);
    return {};
}

QSize ThumbnailModel::PictureSize() const {
    if (rows_ == 0) return {kLongSide, kLongSide};
    const PageSetup& setup = document_->Info().setup;
    return QSize(setup.PageWidth(), setup.PageHeight())
        .scaled(kLongSide, kLongSide, Qt::KeepAspectRatio);
}

QPixmap ThumbnailModel::Picture(int page, double ratio) const {
    if (const QPixmap* known = pictures_.object(page);
        known && known->devicePixelRatio() == ratio) {
        return *known;
    }
    const QSize size = PictureSize();
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    if (painter_ && page < rows_) {
        QPainter painter(&picture);
        const PrintedPage drawn = document_->Page(static_cast<std::size_t>(page));
        painter_->Paint(painter, drawn, size.width() / double(drawn.Width()));
    }
    pictures_.insert(page, new QPixmap(picture));
    return picture;
}

void ThumbnailDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QPalette& colors = option.palette;
    if (selected) painter->fillRect(option.rect, colors.brush(QPalette::Highlight));
    QRect picture(QPoint(), model_.PictureSize());
    picture.moveCenter(option.rect.center());
    picture.moveTop(option.rect.top() + kSpace);
    painter->drawPixmap(picture.topLeft(),
                        model_.Picture(index.row(), painter->device()->devicePixelRatioF()));
    painter->setPen(colors.color(QPalette::Mid));
    painter->drawRect(picture.adjusted(0, 0, -1, -1));
    painter->setPen(colors.color(selected ? QPalette::HighlightedText : QPalette::Text));
    QRect label = option.rect;
    label.setTop(picture.bottom() + 2);
    painter->drawText(label, Qt::AlignHCenter | Qt::AlignTop,
                      index.data(Qt::DisplayRole).toString());
}

QSize ThumbnailDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& /*index*/) const {
    const QSize picture = model_.PictureSize();
    return {picture.width() + 2 * kSpace,
            picture.height() + 2 * kSpace + option.fontMetrics.height()};
}

} // namespace platform::qt
