#include "core/binding/DateEdit.h"

#include <QAction>
#include <QCalendarWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QWidgetAction>

#include "core/binding/KeyFilterEvents.h"
#include "core/binding/Tags.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "platform/values/Text.h"

namespace core::binding {

namespace {

QDate ToScreenDay(platform::Date day) {
    return {day.Year(), static_cast<int>(day.Month()), static_cast<int>(day.Day())};
}

platform::Date FromScreenDay(QDate day) {
    return {day.year(), static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day())};
}

/// The tool tip of a box while it is marked as not holding a date.
constexpr const char* kOwnTip = "ownTip";

/// Makes the button at the end of the box show, in a picture and in words, whether there is a date.
void ShowButton(QAction& button, bool isDate) {
    button.setIcon(
        platform::qt::LoadIcon(isDate ? QStringLiteral("calendar") : QStringLiteral("warning")));
    button.setText(isDate ? DateEdit::tr("Pick a day") : DateEdit::tr("Not a day: pick one"));
    button.setToolTip(isDate ? DateEdit::tr("Pick a day (Alt+Down)")
                             : DateEdit::tr("This is not a day. Pick one (Alt+Down)"));
}

} // namespace

DateEdit::DateEdit(QWidget* parent) : QLineEdit(parent) {
    open_ = addAction(QIcon(), QLineEdit::TrailingPosition);
    ShowButton(*open_, true);
    connect(open_, &QAction::triggered, this, &DateEdit::ShowCalendar);
    // A half-typed date isn't valid yet, so it is marked only when the box loses the focus.
    connect(this, &QLineEdit::textChanged, this, [this] {
        const auto day = Day();
        if (day && day->IsSet()) last_ = *day;
        if (IsValid() || !hasFocus()) MarkValidity();
    });
    setPlaceholderText(tr("mm/dd/yyyy"));
    if (TagOf(*this).empty()) SetTag(*this, "@");
    installEventFilter(new KeyFilterEvents(this));
}

std::optional<platform::Date> DateEdit::Day() const {
    const std::string typed = platform::qt::FromScreen(text());
    if (platform::Trim(typed).empty()) return platform::Date();
    return platform::Date::TryParse(typed);
}

void DateEdit::SetDay(platform::Date day) {
    setText(platform::qt::ToScreen(day.ToText()));
}

void DateEdit::SetStoredText(const QString& text) {
    const auto day = platform::Date::TryParse(platform::qt::FromScreen(text));
    setText(day ? platform::qt::ToScreen(day->ToText()) : text);
}

void DateEdit::ShowCalendar() {
    if (isReadOnly()) return;
    QMenu menu(this);
    auto* const calendar = new QCalendarWidget(&menu);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    const platform::Date shown = Day().value_or(platform::Date());
    calendar->setSelectedDate(ToScreenDay(shown.IsSet() ? shown : platform::Today()));
    auto* const holder = new QWidgetAction(&menu);
    holder->setDefaultWidget(calendar);
    menu.addAction(holder);
    const auto take = [this, &menu](QDate day) {
        SetDay(FromScreenDay(day));
        menu.close();
    };
    connect(calendar, &QCalendarWidget::clicked, this, take);
    connect(calendar, &QCalendarWidget::activated, this, take);
    connect(menu.addAction(tr("&Today")), &QAction::triggered, this,
            [this] { SetDay(platform::Today()); });
    if (!required_) {
        connect(menu.addAction(tr("&No date")), &QAction::triggered, this, [this] { clear(); });
    }
    connect(&menu, &QMenu::aboutToShow, calendar, [calendar] { calendar->setFocus(); });
    menu.exec(mapToGlobal(QPoint(0, height())));
}

void DateEdit::keyPressEvent(QKeyEvent* event) {
    const bool opens = event->key() == Qt::Key_F4 ||
                       (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier);
    if (opens) {
        ShowCalendar();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) Tidy();
    QLineEdit::keyPressEvent(event);
}

void DateEdit::focusOutEvent(QFocusEvent* event) {
    Tidy();
    MarkValidity();
    QLineEdit::focusOutEvent(event);
}

void DateEdit::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) open_->setEnabled(isEnabled());
}

/// Typed short forms ("3/7/24") are spelled out when the box loses the focus.
void DateEdit::Tidy() {
    const auto typed = Day();
    if (!typed) return;
    const auto day = required_ && !typed->IsSet() ? last_ : typed;
    const QString full = platform::qt::ToScreen(day->ToText());
    if (full != text()) setText(full);
}

void DateEdit::MarkValidity() {
    const bool isMarked = property(kOwnTip).isValid();
    if (isMarked != IsValid()) return;
    QPalette look;
    if (!IsValid()) {
        const bool isDark = palette().color(QPalette::Base).lightness() < 128;
        look.setColor(QPalette::Text, isDark ? QColor(0xFF, 0x8A, 0x80) : QColor(0xB0, 0, 0x20));
        setProperty(kOwnTip, toolTip());
        setToolTip(tr("This is not a day. Type it as month/day/year."));
    } else {
        setToolTip(property(kOwnTip).toString());
        setProperty(kOwnTip, {});
    }
    setPalette(look);
    ShowButton(*open_, IsValid());
}

} // namespace core::binding
