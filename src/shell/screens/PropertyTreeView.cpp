#include "shell/screens/PropertyTreeView.h"

#include <QCoreApplication>
#include <QDrag>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyle>

#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"

namespace shell::screens {

namespace {

constexpr int kKindRole = Qt::UserRole;
constexpr int kIdRole = Qt::UserRole + 1;
constexpr int kScrollMargin = 40; // pixels from an edge at which a drag scrolls

PropertyNode NodeOf(const QTreeWidgetItem& item) {
    return {static_cast<PropertyKind>(item.data(0, kKindRole).toInt()),
            item.data(0, kIdRole).toInt()};
}

QString UnitFormat() {
    static const QString format =
        QStringLiteral("application/x-vestrel-unit-%1").arg(QCoreApplication::applicationPid());
    return format;
}

bool IsFolder(const PropertyNode& node) {
    return node.kind == PropertyKind::Buildings || node.kind == PropertyKind::Unclaimed;
}

} // namespace

std::size_t PropertyTreeView::HashNode::operator()(const PropertyNode& node) const {
    constexpr std::size_t kKinds = 4;
    return static_cast<std::size_t>(node.id) * kKinds + static_cast<std::size_t>(node.kind);
}

PropertyTreeView::PropertyTreeView(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropOverwriteMode(true); // frames the building, never draws a line between two
    setAutoScroll(true);
    setAutoScrollMargin(kScrollMargin);
    LoadIcons();
    AddFolder(PropertyKind::Buildings, QStringLiteral("Buildings"));
    AddFolder(PropertyKind::Unclaimed, QStringLiteral("Unclaimed"));
    const auto showFolder = [this](QTreeWidgetItem* item) { ShowFolderIcon(*item); };
    connect(this, &QTreeWidget::itemExpanded, this, showFolder);
    connect(this, &QTreeWidget::itemCollapsed, this, showFolder);
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this] { Q_EMIT NodeChosen(Selected()); });
}

void PropertyTreeView::LoadIcons() {
    openFolder_ = platform::qt::LoadIcon(QStringLiteral("folderopen"));
    closedFolder_ = platform::qt::LoadIcon(QStringLiteral("folderclosed"));
    building_ = platform::qt::LoadIcon(QStringLiteral("property"));
    unit_ = platform::qt::LoadIcon(QStringLiteral("units"));
}

void PropertyTreeView::AddFolder(PropertyKind kind, const QString& text) {
    auto* const item = new QTreeWidgetItem(this, {text});
    item->setData(0, kKindRole, static_cast<int>(kind));
    item->setData(0, kIdRole, 0);
    items_[{kind, 0}] = item;
    item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
    item->setExpanded(true);
    ShowFolderIcon(*item);
}

void PropertyTreeView::ShowFolderIcon(QTreeWidgetItem& folder) {
    if (!IsFolder(NodeOf(folder))) return;
    folder.setIcon(0, folder.isExpanded() ? openFolder_ : closedFolder_);
}

void PropertyTreeView::Apply(const std::vector<TreeChange>& changes) {
    setUpdatesEnabled(false);
    for (const TreeChange& change : changes) {
        switch (change.action) {
            case TreeChange::Action::Add: {
                auto* const item = new QTreeWidgetItem({platform::qt::ToScreen(change.text)});
                const bool isUnit = change.node.kind == PropertyKind::Unit;
                item->setIcon(0, isUnit ? unit_ : building_);
                if (isUnit) item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
                item->setData(0, kKindRole, static_cast<int>(change.node.kind));
                item->setData(0, kIdRole, change.node.id);
                ItemOf(change.parent)->addChild(item);
                items_[change.node] = item;
                break;
            }
            case TreeChange::Action::Rename:
                ItemOf(change.node)->setText(0, platform::qt::ToScreen(change.text));
                break;
            case TreeChange::Action::Move:
                PutUnder(change.node, change.parent);
                break;
            case TreeChange::Action::Remove:
                Remove(change.node);
                break;
        }
    }
    setUpdatesEnabled(true);
}

void PropertyTreeView::Remove(const PropertyNode& node) {
    QTreeWidgetItem* const item = ItemOf(node);
    if (item == nullptr) return;
    // Otherwise another node would become the selection.
    if (item == currentItem()) setCurrentItem(nullptr);
    while (item->childCount() > 0)
        ItemOf({PropertyKind::Unclaimed, 0})->addChild(item->takeChild(0));
    items_.erase(node);
    delete item;
}

void PropertyTreeView::MoveUnder(const PropertyNode& unit, const PropertyNode& building) {
    PutUnder(unit, building);
    Select(unit);
}

/// Moves a node and keeps the selection.
void PropertyTreeView::PutUnder(const PropertyNode& unit, const PropertyNode& building) {
    QTreeWidgetItem* const item = ItemOf(unit);
    QTreeWidgetItem* const parent = ItemOf(building);
    if (item == nullptr || parent == nullptr) return;
    QTreeWidgetItem* const current = currentItem();
    item->parent()->removeChild(item);
    parent->addChild(item);
    setCurrentItem(current);
}

QTreeWidgetItem* PropertyTreeView::ItemOf(const PropertyNode& node) const {
    const auto found = items_.find(node);
    return found == items_.end() ? nullptr : found->second;
}

PropertyNode PropertyTreeView::Selected() const {
    const QTreeWidgetItem* const item = currentItem();
    return item != nullptr ? NodeOf(*item) : PropertyNode{};
}

void PropertyTreeView::Select(const PropertyNode& node) {
    QTreeWidgetItem* const item = ItemOf(node);
    setCurrentItem(item);
    if (item != nullptr) scrollToItem(item);
}

void PropertyTreeView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        event->accept();
        if (currentItem() != nullptr && !event->isAutoRepeat()) Q_EMIT DeleteAsked(Selected());
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

/// Drags only the unit's icon, below the pointer: its whole row would hide the building under it.
void PropertyTreeView::startDrag(Qt::DropActions /*actions*/) {
    if (Selected().kind != PropertyKind::Unit) return;
    constexpr QPoint kBelowThePointer(-8, -14);
    auto* const drag = new QDrag(this);
    drag->setMimeData(model()->mimeData({currentIndex()}));
    drag->setPixmap(unit_.pixmap(style()->pixelMetric(QStyle::PM_SmallIconSize)));
    drag->setHotSpot(kBelowThePointer);
    drag->exec(Qt::MoveAction);
}

/// Returns the unit's id in a format of this process: another process may have other books open.
QMimeData* PropertyTreeView::mimeData(const QList<QTreeWidgetItem*>& items) const {
    auto* const carried = new QMimeData;
    if (items.size() == 1 && NodeOf(*items.front()).kind == PropertyKind::Unit)
        carried->setData(UnitFormat(), QByteArray::number(NodeOf(*items.front()).id));
    return carried;
}

/// The base class frames the building under the pointer only for a format that is listed here.
QStringList PropertyTreeView::mimeTypes() const {
    return {UnitFormat()};
}

QTreeWidgetItem* PropertyTreeView::BuildingUnder(const QDropEvent& event) const {
    if (!event.mimeData()->hasFormat(UnitFormat())) return nullptr;
    QTreeWidgetItem* const item = itemAt(event.position().toPoint());
    return item != nullptr && NodeOf(*item).kind == PropertyKind::Building ? item : nullptr;
}

void PropertyTreeView::dragEnterEvent(QDragEnterEvent* event) {
    if (!event->mimeData()->hasFormat(UnitFormat())) return event->ignore();
    QTreeWidget::dragEnterEvent(event);
    event->acceptProposedAction();
}

void PropertyTreeView::dragMoveEvent(QDragMoveEvent* event) {
    QTreeWidget::dragMoveEvent(event); // scrolls near the edges and draws the place of the drop
    if (BuildingUnder(*event) != nullptr) {
        event->acceptProposedAction();
    } else {
        event->ignore();
    }
}

// The base class would move the node before the user is asked.
void PropertyTreeView::dropEvent(QDropEvent* event) {
    const QTreeWidgetItem* const building = BuildingUnder(*event);
    stopAutoScroll();
    setState(QAbstractItemView::NoState);
    viewport()->update();
    if (building == nullptr) return event->ignore();
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    Q_EMIT UnitDropped(event->mimeData()->data(UnitFormat()).toInt(), NodeOf(*building).id);
}

} // namespace shell::screens
