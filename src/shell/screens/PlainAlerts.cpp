#include "shell/screens/PlainAlerts.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTreeWidget>

#include "alerts/Alerts.h"
#include "alerts/Notes.h"
#include "alerts/PortfolioSummary.h"
#include "core/EditRecord.h"
#include "core/screens/ErrorRoll.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace shell::screens {

using platform::qt::ToScreen;

PlainAlerts::PlainAlerts(QWidget* parent)
    : QWidget(parent),
      count_(new QLabel(this)),
      list_(new QListWidget(this)),
      summary_(new QTreeWidget(this)),
      notes_(new QPlainTextEdit(this)) {
    list_->setAccessibleName(tr("Active alerts"));
    list_->setUniformItemSizes(true);
    summary_->setAccessibleName(tr("Database summary"));
    summary_->setRootIsDecorated(false);
    summary_->setHeaderLabels({tr("Item"), tr("Data")});
    summary_->header()->setStretchLastSection(false);
    summary_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    notes_->setAccessibleName(tr("Notes"));
    notes_->setTabChangesFocus(true);
    auto* const places = new QGridLayout(this);
    places->setContentsMargins(0, 0, 0, 0);
    places->addWidget(count_, 0, 0);
    places->addWidget(list_, 1, 0, 2, 1);
    places->addWidget(summary_, 1, 1);
    places->addWidget(notes_, 2, 1);
    places->setColumnStretch(0, 3);
    places->setColumnStretch(1, 2);
    places->setRowStretch(1, 2);
    places->setRowStretch(2, 1);
    connect(list_, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { OpenAlert(list_->row(item)); });
}

void PlainAlerts::Refresh() {
    ShowSummary();
    ShowAlerts();
    // What was typed and not written yet is newer than the file.
    if (!notes_->document()->isModified()) {
        notes_->setPlainText(ToScreen(alerts::LoadNotes()));
    }
}

void PlainAlerts::SaveNotes() {
    if (!notes_->document()->isModified()) return;
    alerts::SaveNotes(NotesText());
    notes_->document()->setModified(false);
}

std::string PlainAlerts::NotesText() const {
    return platform::qt::FromScreen(notes_->toPlainText());
}

void PlainAlerts::ShowSummary() {
    summary_->clear();
    for (const alerts::SummaryGroup& group : alerts::GetPortfolioSummary()) {
        if (summary_->topLevelItemCount() > 0) new QTreeWidgetItem(summary_);
        auto* const heading = new QTreeWidgetItem(summary_, {ToScreen(group.heading)});
        QFont bold = summary_->font();
        bold.setBold(true);
        heading->setFont(0, bold);
        for (const alerts::SummaryItem& item : group.items) {
            auto* const row = new QTreeWidgetItem(
                summary_, {ToScreen(item.name), ToScreen(platform::FormatMoney(item.total))});
            row->setTextAlignment(1, Qt::AlignRight);
        }
    }
}

void PlainAlerts::ShowAlerts() {
    list_->clear();
    records_.clear();
    for (const alerts::AlertItem& alert : alerts::GetAlerts()) {
        const QString picture = ToScreen(alert.picture).toLower();
        QIcon icon = platform::qt::LoadIcon(picture);
        if (icon.isNull()) icon = platform::qt::LoadIcon(picture + QLatin1Char('s'));
        new QListWidgetItem(icon, ToScreen(alert.text), list_);
        records_.emplace_back(alert.recordKind, alert.recordId);
    }
    if (records_.empty()) {
        new QListWidgetItem(platform::qt::LoadIcon(QStringLiteral("warning")),
                            tr("No Active Alerts."), list_);
    }
    count_->setText(tr("(%1) Active Alerts").arg(list_->count()));
    list_->setCurrentRow(0);
}

void PlainAlerts::OpenAlert(int row) const {
    const auto index = static_cast<std::size_t>(row);
    if (row < 0 || index >= records_.size()) return;
    const auto& record = records_[index];
    if (record.first == 0 || record.second == 0) return;
    core::screens::Guarded([&] { core::EditRecord(record.first, record.second); });
}

} // namespace shell::screens
