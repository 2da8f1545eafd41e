#include "search/screens/ResultList.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"

namespace search::screens {

using platform::qt::ToScreen;

namespace {

/// The hits of a group that are shown until the user asks for more.
constexpr std::size_t kFirstShown = 6;
constexpr int kGroupRole = Qt::UserRole;
constexpr int kHitRole = Qt::UserRole + 1;
constexpr int kNoHit = -1;
constexpr int kTitleShare = 55; // percent
constexpr int kPictureSize = 18;
constexpr int kRowSpace = 7;

} // namespace

ResultList::ResultList(QWidget* parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("lvw"));
    setAccessibleName(tr("Results"));
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideRight);
    setIconSize({kPictureSize, kPictureSize});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    header()->setStretchLastSection(true);
    connect(this, &QTreeWidget::itemActivated, this, &ResultList::ChooseCurrent);
}

void ResultList::Show(std::vector<HitGroup> groups, const QString& search) {
    groups_ = std::move(groups);
    if (search != search_) opened_.clear();
    const int row = search == search_ ? static_cast<int>(Rows().indexOf(currentItem())) : 0;
    search_ = search;
    Fill();
    const QList<QTreeWidgetItem*> rows = Rows();
    if (!rows.isEmpty()) setCurrentItem(rows[std::clamp<qsizetype>(row, 0, rows.size() - 1)]);
}

void ResultList::Fill() {
    clear();
    for (std::size_t number = 0; number < groups_.size(); ++number)
        AddGroup(number);
    expandAll();
}

void ResultList::AddGroup(std::size_t number) {
    const HitGroup& group = groups_[number];
    const QString name = ToScreen(group.name);
    auto* const heading = new QTreeWidgetItem(this, {name});
    heading->setFlags(Qt::ItemIsEnabled);
    heading->setFirstColumnSpanned(true);
    QFont bold = font();
    bold.setBold(true);
    heading->setFont(0, bold);
    // All rows get the height of the first one.
    heading->setSizeHint(0, {0, fontMetrics().lineSpacing() + kRowSpace});
    const bool isWhole = opened_.contains(name) || group.hits.size() <= kFirstShown + 1;
    const std::size_t shown = isWhole ? group.hits.size() : kFirstShown;
    const QIcon icon = platform::qt::LoadIcon(ToScreen(group.icon));
    for (std::size_t i = 0; i < shown; ++i) {
        const QString title = ToScreen(group.hits[i].title);
        const QString detail = ToScreen(group.hits[i].detail);
        auto* const row = new QTreeWidgetItem(heading, {title.simplified(), detail.simplified()});
        row->setIcon(0, icon);
        row->setToolTip(0, title);
        row->setToolTip(1, detail);
        row->setData(0, kGroupRole, static_cast<int>(number));
        row->setData(0, kHitRole, static_cast<int>(i));
    }
    if (isWhole && !group.hasMore) return;
    auto* const more = new QTreeWidgetItem(heading);
    if (isWhole) {
        more->setText(0, tr("There are more. Type another word to find fewer."));
        more->setFlags(Qt::NoItemFlags);
        more->setFirstColumnSpanned(true);
        return;
    }
    more->setText(0, tr("Show more..."));
    more->setData(0, kGroupRole, static_cast<int>(number));
    more->setData(0, kHitRole, kNoHit);
}

int ResultList::HitCount() const {
    std::size_t hits = 0;
    for (const HitGroup& group : groups_)
        hits += group.hits.size();
    return static_cast<int>(hits);
}

QList<QTreeWidgetItem*> ResultList::Rows() const {
    QList<QTreeWidgetItem*> rows;
    for (int group = 0; group < topLevelItemCount(); ++group) {
        const QTreeWidgetItem* const heading = topLevelItem(group);
        for (int i = 0; i < heading->childCount(); ++i) {
            if (heading->child(i)->flags() & Qt::ItemIsSelectable) rows << heading->child(i);
        }
    }
    return rows;
}

void ResultList::Move(int rows) {
    const QList<QTreeWidgetItem*> all = Rows();
    if (all.isEmpty()) return;
    const qsizetype next =
        std::clamp<qsizetype>(all.indexOf(currentItem()) + rows, 0, all.size() - 1);
    setCurrentItem(all[next]);
    // Scrolls so that the heading of the first row is visible too.
    if (next == 0) scrollToTop();
}

const Hit* ResultList::HitOf(const QTreeWidgetItem* row) const {
    if (row == nullptr || !row->data(0, kHitRole).isValid()) return nullptr;
    const int hit = row->data(0, kHitRole).toInt();
    if (hit == kNoHit) return nullptr;
    const HitGroup& group = groups_[row->data(0, kGroupRole).toUInt()];
    return &group.hits[static_cast<std::size_t>(hit)];
}

void ResultList::ChooseCurrent() {
    const QTreeWidgetItem* const row = currentItem();
    if (row == nullptr) return;
    if (const Hit* const hit = HitOf(row)) {
        Q_EMIT Chosen(*hit);
        return;
    }
    if (!row->data(0, kHitRole).isValid()) return;
    const qsizetype place = Rows().indexOf(currentItem());
    opened_ << ToScreen(groups_[row->data(0, kGroupRole).toUInt()].name);
    Fill();
    const QList<QTreeWidgetItem*> rows = Rows();
    if (place < rows.size()) setCurrentItem(rows[place]);
}

void ResultList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    setColumnWidth(0, viewport()->width() * kTitleShare / 100);
}

void ResultList::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Up:
            Move(-1);
            break;
        case Qt::Key_Down:
            Move(1);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            ChooseCurrent();
            break;
        default:
            QTreeWidget::keyPressEvent(event);
    }
}

} // namespace search::screens
