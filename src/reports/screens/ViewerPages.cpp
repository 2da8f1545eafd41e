#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QSignalBlocker>

#include "platform/qt/PressGuard.h"
#include "platform/qt/Text.h"
#include "reports/screens/frmReportViewer.h"
#include "ui_frmReportViewer.h"

namespace reports::screens {

using platform::SearchDirection;
using platform::qt::PageFit;
using platform::qt::PagePreview;
using platform::qt::PageThumbnails;

void frmReportViewer::SetUpPages() {
    const std::pair<QToolButton*, const char*> buttons[] = {
        {ui_->cmdFirst, "mnuFirst"},       {ui_->cmdPrevious, "mnuPrevious"},
        {ui_->cmdNext, "mnuNext"},         {ui_->cmdLast, "mnuLast"},
        {ui_->cmdZoomOut, "mnuZoomOut"},   {ui_->cmdZoomIn, "mnuZoomIn"},
        {ui_->cmdFitWidth, "mnuFitWidth"}, {ui_->cmdFitPage, "mnuFitPage"}};
    for (const auto& [button, action] : buttons) {
        button->setDefaultAction(Action(action));
        button->setProperty(platform::qt::kTakesEveryPress, true);
        button->setAccessibleName(Action(action)->text().remove(QLatin1Char('&')));
    }
    for (const char* zoom :
         {"Fit width", "Fit page", "50%", "75%", "100%", "125%", "150%", "200%", "400%"}) {
        ui_->cboZoom->addItem(tr(zoom));
    }
    connect(ui_->vp, &PagePreview::CurrentPageChanged, this, &frmReportViewer::ShowCurrentPage);
    connect(ui_->vp, &PagePreview::ZoomChanged, this, &frmReportViewer::ShowZoom);
    connect(ui_->NavBar, &PageThumbnails::PageChosen, ui_->vp, &PagePreview::GoToPage);
    connect(ui_->txtPage, &QSpinBox::valueChanged, this,
            [this](int number) { ui_->vp->GoToPage(number - 1); });
    connect(ui_->cboZoom, &QComboBox::textActivated, this, &frmReportViewer::TakeZoom);
    connect(ui_->cboZoom->lineEdit(), &QLineEdit::returnPressed, this,
            [this] { TakeZoom(ui_->cboZoom->currentText()); });
    connect(ui_->txtFind, &QLineEdit::textEdited, this, [this] { ui_->lblWork->clear(); });
    connect(ui_->txtFind, &QLineEdit::returnPressed, this, [this] {
        const bool back = QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
        Find(back ? SearchDirection::Backward : SearchDirection::Forward);
    });
    ShowCurrentPage(-1);
    ShowZoom();
}

void frmReportViewer::ShowCurrentPage(int page) {
    const int count = ui_->vp->PageCount();
    const QSignalBlocker quiet(ui_->txtPage);
    ui_->txtPage->setRange(count ? 1 : 0, count);
    ui_->txtPage->setValue(page + 1);
    ui_->txtPage->setEnabled(count > 0);
    const QString total = tr("of %L1").arg(count);
    ui_->lblPages->setText(work_ == Work::Layout ? total + QStringLiteral("...") : total);
    ui_->NavBar->ShowPage(page);
    Action("mnuFirst")->setEnabled(page > 0);
    Action("mnuPrevious")->setEnabled(page > 0);
    Action("mnuNext")->setEnabled(page + 1 < count);
    Action("mnuLast")->setEnabled(page + 1 < count);
}

void frmReportViewer::ShowZoom() {
    const PageFit fit = ui_->vp->Fit();
    QString text = tr("%1%").arg(qRound(ui_->vp->Zoom()));
    if (fit == PageFit::Width) text = ui_->cboZoom->itemText(0);
    if (fit == PageFit::Page) text = ui_->cboZoom->itemText(1);
    const QSignalBlocker quiet(ui_->cboZoom);
    ui_->cboZoom->setCurrentIndex(ui_->cboZoom->findText(text));
    ui_->cboZoom->setEditText(text);
}

void frmReportViewer::TakeZoom(const QString& text) {
    if (text == ui_->cboZoom->itemText(0)) return ui_->vp->SetFit(PageFit::Width);
    if (text == ui_->cboZoom->itemText(1)) return ui_->vp->SetFit(PageFit::Page);
    bool isNumber = false;
    const double percent = QString(text).remove(QLatin1Char('%')).trimmed().toDouble(&isNumber);
    if (isNumber && percent > 0) {
        ui_->vp->SetZoom(percent);
    } else {
        ShowZoom();
    }
}

void frmReportViewer::Find(SearchDirection direction) {
    const QString text = ui_->txtFind->text();
    const bool isFound = ui_->vp->Find(text, direction);
    ui_->lblWork->setText(isFound ? QString() : tr("Not found"));
}

} // namespace reports::screens
