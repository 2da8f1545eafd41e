#include "search/screens/frmSearch.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QVBoxLayout>

#include "core/Descriptions.h"
#include "core/EditRecord.h"
#include "core/RecordNotices.h"
#include "core/forms/ErrorRoll.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "search/screens/ResultList.h"

namespace search::screens {

using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr std::size_t kMostHits = 50; // of a group
constexpr int kPageOfRows = 8;
constexpr int kLongestSearch = 10'000;

} // namespace

frmSearch::frmSearch(Finder& finder, ItemOpener openItem, QWidget* parent)
    : Form(parent),
      finder_(finder),
      openItem_(std::move(openItem)),
      txtSearch_(new QLineEdit(this)),
      list_(new ResultList(this)),
      status_(new QLabel(this)),
      notice_(new QLabel(this)),
      reading_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmSearch"));
    setWindowTitle(tr("Search Everything"));
    resize(680, 520);
    Lay();
    txtSearch_->installEventFilter(this);
    connect(txtSearch_, &QLineEdit::textChanged, this,
            [this] { Guarded([this] { ShowResults(); }); });
    connect(list_, &ResultList::Chosen, this, &frmSearch::OpenHit);
    connect(reading_, &QTimer::timeout, this, [this] {
        if (!Guarded([this] { ReadOn(); })) reading_->stop();
    });
}

frmSearch::~frmSearch() {
    finder_.Abandon();
}

void frmSearch::Lay() {
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    txtSearch_->setAccessibleName(tr("Search for"));
    txtSearch_->setPlaceholderText(tr("Name, address, amount, check number, report, command..."));
    txtSearch_->setClearButtonEnabled(true);
    txtSearch_->setMaxLength(kLongestSearch);
    txtSearch_->addAction(platform::qt::LoadIcon(QStringLiteral("search")),
                          QLineEdit::LeadingPosition);
    status_->setObjectName(QStringLiteral("lblStatus"));
    status_->setWordWrap(true);
    notice_->setObjectName(QStringLiteral("lblNotice"));
    notice_->setTextFormat(Qt::PlainText);
    notice_->setWordWrap(true);
    notice_->setFrameShape(QFrame::StyledPanel);
    notice_->setMargin(6);
    notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    notice_->hide();
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(txtSearch_);
    rows->addWidget(list_, 1);
    rows->addWidget(notice_);
    rows->addWidget(status_);
    setTabOrder(txtSearch_, list_);
}

void frmSearch::Setup() {
    Guarded([this] { ShowResults(); });
    Open();
    txtSearch_->setFocus();
}

void frmSearch::NotifyUpdate(core::RecordKind /*kind*/, std::int16_t /*action*/,
                             std::int32_t /*id*/) {
    reading_->start();
}

void frmSearch::ReadOn() {
    if (!finder_.Step()) {
        ShowStatus();
        return;
    }
    reading_->stop();
    ShowResults();
}

void frmSearch::ShowResults() {
    const QString text = txtSearch_->text();
    list_->Show(finder_.Find(FromScreen(text), kMostHits), text);
    // Needed also after a search that found the index damaged.
    if (finder_.IsStale()) reading_->start();
    ShowStatus();
}

void frmSearch::ShowStatus() {
    const QString notice = ToScreen(finder_.Notice());
    notice_->setText(notice);
    notice_->setVisible(!notice.isEmpty());
    if (finder_.IsReading()) {
        status_->setText(tr("Reading the books: %1 %").arg(finder_.Percent()));
        return;
    }
    const int hits = list_->HitCount();
    if (txtSearch_->text().trimmed().isEmpty()) {
        status_->setText(tr(
            "Type some words. The arrow keys choose, Enter opens, Esc closes, F1 explains more."));
    } else if (hits == 0) {
        status_->setText(tr("Nothing has all of these words."));
    } else {
        status_->setText(hits == 1 ? tr("One result") : tr("%1 results").arg(hits));
    }
}

/// Opens a hit. The box closes first, so that it isn't in front of what opens.
void frmSearch::OpenHit(const Hit& hit) {
    if (isOpening_) return;
    isOpening_ = true;
    const Hit chosen = hit;
    reading_->stop();
    close();
    QTimer::singleShot(0, qApp, [chosen, openItem = openItem_] {
        Guarded([&] {
            if (!chosen.record) return openItem(chosen.item);
            const Target& record = *chosen.record;
            // The record may have been deleted since it was found, and would open as a new one.
            if (!core::RecordExists(record.kind, record.id)) {
                core::OneRecordFound(0);
                return;
            }
            core::EditRecord(record.kind, record.id, record.parent1, 0, record.parent3);
        });
    });
}

bool frmSearch::eventFilter(QObject* watched, QEvent* event) {
    if (watched != txtSearch_ || event->type() != QEvent::KeyPress)
        return Form::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
            list_->Move(-1);
            return true;
        case Qt::Key_Down:
            list_->Move(1);
            return true;
        case Qt::Key_PageUp:
            list_->Move(-kPageOfRows);
            return true;
        case Qt::Key_PageDown:
            list_->Move(kPageOfRows);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!static_cast<const QKeyEvent*>(event)->isAutoRepeat()) list_->ChooseCurrent();
            return true;
        default:
            return Form::eventFilter(watched, event);
    }
}

} // namespace search::screens
