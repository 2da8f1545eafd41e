#include "shell/screens/frmPosted.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTreeView>
#include <QVBoxLayout>

#include "core/EditRecord.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "shell/screens/PostedRows.h"

namespace shell::screens {

frmPosted::frmPosted(QWidget* parent) : Form(parent), list_(new QTreeView(this)) {
    setObjectName(QStringLiteral("frmPosted"));
    setWindowTitle(tr("Posted While You Were Away"));
    resize(720, 420);
    list_->setObjectName(QStringLiteral("lvwPosted"));
    list_->setAccessibleName(windowTitle());
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAlternatingRowColors(true);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Close | QDialogButtonBox::Help, this);
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(list_);
    rows->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmPosted::close);
    connect(buttons, &QDialogButtonBox::helpRequested, this,
            [this] { core::forms::ShowHelp(*this); });
    connect(list_, &QTreeView::activated, this, &frmPosted::OpenRow);
}

void frmPosted::Setup(RunDigest digest) {
    digest_ = std::move(digest);
    list_->setModel(new PostedRows(digest_, list_));
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(2, QHeaderView::Stretch);
    list_->setCurrentIndex(list_->model()->index(0, 0));
    Open();
}

void frmPosted::OpenRow(const QModelIndex& row) const {
    const auto& rows = static_cast<const PostedRows&>(*list_->model());
    const DigestRow* const posted = rows.PostedAt(row.row());
    if (posted == nullptr) return;
    core::forms::Guarded([&] { core::EditRecord(posted->recordKind, posted->recordId); });
}

} // namespace shell::screens
