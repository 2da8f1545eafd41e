#include "core/forms/FitScreen.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "core/forms/ActionBar.h"

namespace core::forms {

namespace {

constexpr int kTitleHeight = 40; // until the window system has said how high its frame is

/// A scroll area that asks for the size of its page, but can be smaller.
class PageArea : public QScrollArea {
  public:
    explicit PageArea(QWidget* parent) : QScrollArea(parent) {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        viewport()->setAutoFillBackground(false);
    }
    QSize sizeHint() const override { return widget() ? widget()->sizeHint() : QSize(); }
    QSize minimumSizeHint() const override {
        if (!widget()) return {};
        return widget()->minimumSizeHint().boundedTo(QSize(kLeastWidth, kLeastHeight));
    }

  private:
    static constexpr int kLeastWidth = 320;
    static constexpr int kLeastHeight = 160;
};

void LetScroll(QWidget& page) {
    if (!page.layout() || page.findChild<PageArea*>(QString(), Qt::FindDirectChildrenOnly)) return;
    auto* const area = new PageArea(&page);
    area->setObjectName(QStringLiteral("scroll"));
    auto* const contents = new QWidget(area);
    contents->setLayout(page.layout()); // takes the controls along
    area->setWidget(contents);
    contents->setAutoFillBackground(false);
    auto* const outer = new QVBoxLayout(&page);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(area);
}

bool HoldsOnlyButtons(const QLayout* row) {
    if (!row) return false;
    for (int i = 0; i < row->count(); ++i) {
        const QWidget* const widget = row->itemAt(i)->widget();
        if (widget && !qobject_cast<const QAbstractButton*>(widget)) return false;
    }
    return true;
}

/// Moves an item with its controls to another layout.
void MoveItem(QLayoutItem& item, QVBoxLayout& rows) {
    if (item.layout()) {
        rows.addLayout(item.layout());
    } else if (item.widget()) {
        rows.addWidget(item.widget());
        delete &item;
    } else {
        rows.addItem(&item);
    }
}

QSize FrameOf(const QWidget& window) {
    return window.frameGeometry().size() - window.geometry().size();
}

/// Returns the height of the title bar that the window system is yet to add to a new window. The
/// place of a window that was moved includes its title bar already.
int TitleToCome(const QWidget& window) {
    const bool comes = FrameOf(window).isEmpty() && !window.testAttribute(Qt::WA_Moved);
    return comes ? kTitleHeight : 0;
}

/// Returns the largest size of a window that fits its screen, without its frame.
QSize RoomFor(const QWidget& window) {
    const QSize frame = FrameOf(window);
    return window.screen()->availableGeometry().size() -
           QSize(frame.width(), std::max(frame.height(), kTitleHeight));
}

bool TakesEntry(const QWidget& widget) {
    if (!widget.isEnabled() || !widget.isVisible()) return false;
    if ((widget.focusPolicy() & Qt::TabFocus) == 0) return false;
    if (const auto* const line = qobject_cast<const QLineEdit*>(&widget))
        return !line->isReadOnly();
    if (const auto* const page = qobject_cast<const QPlainTextEdit*>(&widget))
        return !page->isReadOnly();
    return qobject_cast<const QComboBox*>(&widget) != nullptr;
}

} // namespace

void LetPagesScroll(QWidget& form) {
    auto* const tabs = form.findChild<QTabWidget*>(QStringLiteral("tabs"));
    for (int page = 0; tabs && page < tabs->count(); ++page)
        LetScroll(*tabs->widget(page));
}

bool LetFormScroll(QWidget& form) {
    const QSize room = RoomFor(form);
    const QSize wanted = form.sizeHint();
    auto* const column = qobject_cast<QVBoxLayout*>(form.layout());
    if (!column || (wanted.width() <= room.width() && wanted.height() <= room.height()))
        return false;
    auto* const area = new PageArea(&form);
    area->setObjectName(QStringLiteral("scroll"));
    auto* const contents = new QWidget(area);
    auto* const rows = new QVBoxLayout(contents);
    rows->setContentsMargins(0, 0, 0, 0);
    while (column->count() > 0) {
        if (qobject_cast<ActionBar*>(column->itemAt(0)->widget())) break;
        // The buttons that a wizard ends with don't scroll away either.
        if (column->count() == 1 && HoldsOnlyButtons(column->itemAt(0)->layout())) break;
        MoveItem(*column->takeAt(0), *rows);
    }
    area->setWidget(contents);
    column->insertWidget(0, area);
    form.resize(form.sizeHint().boundedTo(room));
    return true;
}

void FitToScreen(QWidget& window) {
    const QScreen* const screen = window.screen();
    if (!screen || window.isMaximized()) return;
    const QRect available = screen->availableGeometry().adjusted(0, TitleToCome(window), 0, 0);
    const QSize room = RoomFor(window);
    // A form's own minimum size is its preferred size.
    window.setMinimumSize(window.minimumSize().boundedTo(room));
    if (window.width() > room.width() || window.height() > room.height())
        window.resize(window.size().boundedTo(room));
    const QRect now(window.pos(), window.size() + FrameOf(window));
    const QPoint place(
        std::clamp(now.left(), available.left(),
                   std::max(available.left(), available.right() + 1 - now.width())),
        std::clamp(now.top(), available.top(),
                   std::max(available.top(), available.bottom() + 1 - now.height())));
    if (place != now.topLeft()) window.move(place);
}

void FocusFirstEntry(QWidget& form) {
    const QWidget* const now = form.focusWidget();
    if (now && TakesEntry(*now)) return;
    for (QWidget* next = form.nextInFocusChain(); next && next != &form;
         next = next->nextInFocusChain()) {
        if (!form.isAncestorOf(next) || !TakesEntry(*next)) continue;
        return next->setFocus();
    }
}

} // namespace core::forms
