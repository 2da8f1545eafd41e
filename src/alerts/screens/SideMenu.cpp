#include "alerts/screens/SideMenu.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace alerts::screens {

namespace {

constexpr int kIndent = 18; // items are below their heading's text

QToolButton* MakeButton(QWidget* parent, const QString& text) {
    auto* const button = new QToolButton(parent);
    button->setText(text);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return button;
}

} // namespace

SideMenu::SideMenu(QWidget* parent) : QWidget(parent), rows_(new QVBoxLayout(this)) {
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(2);
}

void SideMenu::AddGroup(const QString& title, QWidget* content) {
    QToolButton* const heading = MakeButton(this, title);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setCheckable(true);
    heading->setChecked(true);
    heading->setArrowType(Qt::DownArrow);
    rows_->addWidget(heading);
    rows_->addWidget(content);
    const bool grows = content->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
    rows_->setStretchFactor(content, grows ? 1 : 0);
    AppendTabStop(heading);
    if (content->focusPolicy() != Qt::NoFocus) AppendTabStop(content);
    connect(heading, &QToolButton::toggled, content, [heading, content](bool open) {
        heading->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
        content->setVisible(open);
    });
}

QWidget* SideMenu::AddGroup(const QString& title) {
    auto* const group = new QWidget(this);
    auto* const items = new QVBoxLayout(group);
    items->setContentsMargins(kIndent, 0, 0, 0);
    items->setSpacing(0);
    AddGroup(title, group);
    return group;
}

QToolButton* SideMenu::AddItem(QWidget* group, const QString& key, const QString& text) {
    QToolButton* const item = MakeButton(group, text);
    item->setObjectName(key);
    group->layout()->addWidget(item);
    AppendTabStop(item);
    return item;
}

void SideMenu::EndGroups() {
    rows_->addStretch();
}

void SideMenu::AppendTabStop(QWidget* stop) {
    if (lastStop_ != nullptr) setTabOrder(lastStop_, stop);
    lastStop_ = stop;
}

} // namespace alerts::screens
