#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <memory>

#include "platform/printing/PrintedDocument.h"
#include "platform/qt/preview/PagePainter.h"

namespace platform::qt {

/// The pages of a document as rows; their pictures are made when they are first visible.
class ThumbnailModel : public QAbstractListModel {
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;

    void SetDocument(const PrintedDocument* document, const FontBook* fonts);
    void PagesAdded();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// Returns the size of a picture in the view's units.
    QSize PictureSize() const;
    QPixmap Picture(int page, double ratio) const;

  private:
    const PrintedDocument* document_ = nullptr;
    std::unique_ptr<PagePainter> painter_;
    int rows_ = 0;
    mutable QCache<int, QPixmap> pictures_{64};
};

class ThumbnailDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit ThumbnailDelegate(const ThumbnailModel& model, QObject* parent)
        : QStyledItemDelegate(parent), model_(model) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    const ThumbnailModel& model_;
};

} // namespace platform::qt
