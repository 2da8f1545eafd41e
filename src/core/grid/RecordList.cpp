#include "core/grid/RecordList.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolButton>

#include "core/binding/Tags.h"
#include "core/grid/GridColumns.h"
#include "platform/qt/Icons.h"

namespace core::grid {

namespace {

constexpr int kFirstShown = 1; // after the id column
constexpr int kRowsWanted = 6; // a lower list isn't worth its place

} // namespace

RecordList::RecordList(QWidget* parent) : QWidget(parent), head_(new QHBoxLayout) {
    setProperty("panel", true);
    // The tab order is the order of creation.
    add_ = MakeButton("add", tr("Add"), QStringLiteral("cmdAdd"));
    edit_ = MakeButton("edit", tr("Edit"), QStringLiteral("cmdEdit"));
    delete_ = MakeButton("delete", tr("Delete"), QStringLiteral("cmdDelete"));
    grid_ = new Grid(this);

    grid_->setObjectName(QStringLiteral("grd"));
    grid_->setSelectionMode(QAbstractItemView::SingleSelection);
    grid_->setMinimumHeight(kRowsWanted * grid_->verticalHeader()->defaultSectionSize());
    SetupGrid(*grid_);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    head_->setContentsMargins(0, 0, 0, 0);
    head_->addStretch();
    for (QToolButton* const button : {add_, edit_, delete_})
        head_->addWidget(button);
    column->addLayout(head_);
    column->addWidget(grid_);
    Connect();
    ShowAvailable();
}

RecordList::~RecordList() {
    KeepWidths();
}

/// Stores the widths. A list that was never visible has none that the user has chosen.
void RecordList::KeepWidths() {
    if (wasSeen_) SaveColumnWidths(*grid_);
}

void RecordList::SetHead(QWidget* head) {
    head_->insertWidget(0, head);
    // It was created after the rest of the panel but is placed before it.
    const auto inside = head->findChildren<QWidget*>();
    setTabOrder(inside.isEmpty() ? head : inside.last(), add_);
    setTabOrder(add_, edit_);
    setTabOrder(edit_, delete_);
    setTabOrder(delete_, grid_);
}

void RecordList::ShowRows(platform::Recordset rows, std::string_view gridKey) {
    const std::int32_t id = grid_->SelectedId();
    const int scrolled = grid_->verticalScrollBar()->value();
    KeepWidths();
    binding::SetTag(*grid_, gridKey);
    LoadGrid(*grid_, std::move(rows));
    SizeColumns(*grid_, kFirstShown);
    grid_->SetEmptyText(tr("Nothing here yet."));
    const bool found = id != 0 && grid_->SelectId(id);
    if (!found && grid_->Model().rowCount() > 0) {
        grid_->setCurrentIndex(grid_->Model().index(0, kFirstShown));
    }
    grid_->verticalScrollBar()->setValue(scrolled);
    ShowAvailable();
}

void RecordList::ShowNothing(const QString& reason) {
    KeepWidths();
    grid_->Model().SetRows({});
    grid_->SetEmptyText(reason);
    ShowAvailable();
}

void RecordList::Allow(bool add, bool edit, bool remove) {
    mayAdd_ = add;
    mayEdit_ = edit;
    mayDelete_ = remove;
    ShowAvailable();
}

QToolButton* RecordList::MakeButton(const char* icon, const QString& text, const QString& name) {
    auto* const button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(text);
    button->setIcon(platform::qt::LoadIcon(QString::fromLatin1(icon)));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
    return button;
}

void RecordList::Connect() {
    connect(add_, &QToolButton::clicked, this, &RecordList::AddAsked);
    connect(edit_, &QToolButton::clicked, this, &RecordList::AskToEdit);
    connect(delete_, &QToolButton::clicked, this, &RecordList::AskToDelete);
    connect(grid_, &Grid::RowChosen, this, &RecordList::AskToEdit);
    connect(grid_, &Grid::SelectionMoved, this, &RecordList::ShowAvailable);
    grid_->installEventFilter(this);
}

bool RecordList::eventFilter(QObject* watched, QEvent* event) {
    if (watched == grid_ && event->type() == QEvent::Show) wasSeen_ = true;
    if (watched == grid_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        QToolButton* const button = key == Qt::Key_Insert   ? add_
                                    : key == Qt::Key_Delete ? delete_
                                                            : nullptr;
        if (button) {
            button->click();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void RecordList::AskToEdit() {
    if (edit_->isEnabled()) Q_EMIT EditAsked(grid_->SelectedId());
}

void RecordList::AskToDelete() {
    if (delete_->isEnabled()) Q_EMIT DeleteAsked(grid_->SelectedId());
}

void RecordList::ShowAvailable() {
    const bool hasRow = grid_->SelectedId() != 0;
    add_->setEnabled(mayAdd_);
    edit_->setEnabled(mayEdit_ && hasRow);
    delete_->setEnabled(mayDelete_ && hasRow);
    const QString nothing = tr("Select a row first");
    const QString unsaved = tr("Press Apply to save this record first");
    add_->setToolTip(mayAdd_ ? tr("Add a new one (Insert)") : unsaved);
    edit_->setToolTip(!mayEdit_ ? unsaved : hasRow ? tr("Open the selected one (Enter)") : nothing);
    delete_->setToolTip(!mayDelete_ ? unsaved
                        : hasRow    ? tr("Delete the selected one (Delete)")
                                    : nothing);
}

} // namespace core::grid
