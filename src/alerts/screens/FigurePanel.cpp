#include "alerts/screens/FigurePanel.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/qt/Icons.h"

namespace alerts::screens {

FigurePanel::FigurePanel(const QString& name, const QString& title, QWidget* parent)
    : QFrame(parent),
      title_(new QToolButton(this)),
      sentence_(new QLabel(this)),
      chart_(new platform::qt::SeriesChart(this)) {
    setObjectName(name);
    setFrameShape(StyledPanel);
    title_->setObjectName(QStringLiteral("cmd") + name);
    title_->setText(title);
    title_->setIcon(platform::qt::LoadIcon(QStringLiteral("reports")));
    title_->setToolTip(tr("Open the report that shows this"));
    title_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    title_->setAutoRaise(true);
    title_->setFocusPolicy(Qt::StrongFocus);
    QFont bold = title_->font();
    bold.setBold(true);
    title_->setFont(bold);
    sentence_->setObjectName(QStringLiteral("lbl") + name);
    sentence_->setTextFormat(Qt::PlainText);
    sentence_->setWordWrap(true);
    sentence_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    chart_->setObjectName(QStringLiteral("cht") + name);
    chart_->setAccessibleName(title);
    chart_->setFrameShape(NoFrame);
    chart_->setMinimumHeight(90);
    chart_->SetMarks(platform::qt::ChartMarks::Patterns);
    chart_->LetLabelsOpen();
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(title_, 0, Qt::AlignLeft);
    rows->addWidget(sentence_);
    rows->addWidget(chart_, 1);
    rows->addStretch(0);
    connect(title_, &QToolButton::clicked, this, &FigurePanel::ReportAsked);
}

void FigurePanel::ShowFigure(const QString& sentence) {
    sentence_->setText(sentence);
    chart_->show();
}

void FigurePanel::ShowOnly(const QString& sentence) {
    sentence_->setText(sentence);
    chart_->hide();
}

} // namespace alerts::screens
