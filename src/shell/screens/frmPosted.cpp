#include "shell/screens/frmPosted.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "core/EditRecord.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "core/grid/Grid.h"
#include "shell/DigestTable.h"

namespace shell::screens {

namespace {

constexpr int kFirstShown = 1; // after the row number

} // namespace

frmPosted::frmPosted(QWidget* parent) : Form(parent), list_(new core::grid::Grid(this)) {
    setObjectName(QStringLiteral("frmPosted"));
    setWindowTitle(tr("Posted While You Were Away"));
    resize(720, 420);
    list_->setObjectName(QStringLiteral("lvwPosted"));
    list_->setAccessibleName(windowTitle());
    core::grid::SetupGrid(*list_);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Close | QDialogButtonBox::Help, this);
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(list_);
    rows->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmPosted::close);
    connect(buttons, &QDialogButtonBox::helpRequested, this,
            [this] { core::forms::ShowHelp(*this); });
    connect(list_, &core::grid::Grid::RowChosen, this, &frmPosted::OpenRow);
}

void frmPosted::Setup(RunDigest digest) {
    digest_ = std::move(digest);
    core::grid::LoadGrid(*list_, std::make_unique<DigestTable>(digest_));
    core::grid::AutoSizeGrid(*list_, kFirstShown, core::grid::Sizing::FitGrid);
    list_->SelectId(1);
    Open();
}

void frmPosted::OpenRow(std::int32_t number) const {
    const DigestRow* const posted = DigestTable(digest_).PostedRow(number);
    if (posted == nullptr) return;
    core::forms::Guarded([&] { core::EditRecord(posted->recordKind, posted->recordId); });
}

} // namespace shell::screens
