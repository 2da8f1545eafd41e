#include "documents/screens/FileListView.h"

#include <QKeyEvent>
#include <QPainter>

namespace documents::screens {

namespace {

constexpr QSize kIconSize{36, 36};
constexpr int kTextMargin = 12;

} // namespace

FileListView::FileListView(QWidget* parent) : QListView(parent) {
    setIconSize(kIconSize);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setTabKeyNavigation(false);
    // Drops are handled by the panel.
    setDragDropMode(QAbstractItemView::NoDragDrop);
    connect(this, &QListView::doubleClicked, this, &FileListView::FileChosen);
}

void FileListView::SetEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

void FileListView::keyPressEvent(QKeyEvent* event) {
    const bool hasFile = currentIndex().isValid() && state() != QAbstractItemView::EditingState;
    switch (event->key()) {
        case Qt::Key_Insert:
            Q_EMIT AddAsked();
            return;
        case Qt::Key_Delete:
            Q_EMIT DeleteAsked();
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!hasFile) break;
            Q_EMIT FileChosen();
            return;
        default:
            break;
    }
    QListView::keyPressEvent(event);
}

void FileListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (!model() || model()->rowCount() != 0) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect room =
        viewport()->rect().adjusted(kTextMargin, kTextMargin, -kTextMargin, -kTextMargin);
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

void FileListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    Q_EMIT SelectionMoved();
}

} // namespace documents::screens
