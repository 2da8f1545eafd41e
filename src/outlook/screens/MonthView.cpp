#include "outlook/screens/MonthView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <algorithm>

#include "platform/qt/Text.h"

namespace outlook::screens {

using platform::Date;
using platform::qt::ToScreen;

namespace {

constexpr int kDaysOfWeek = 7;
constexpr int kWeeks = 6;
constexpr int kLinesRole = Qt::UserRole;
constexpr int kCellMargin = 8;

/// Returns the weekday of the first column, 0 for Sunday.
int FirstWeekday() {
    return QLocale().firstDayOfWeek() % kDaysOfWeek;
}

Date FirstOfPage(Date day) {
    const Date first(day.Year(), day.Month(), 1);
    const int weekday = static_cast<int>(first.Weekday()) - 1;
    const int before = (weekday - FirstWeekday() + kDaysOfWeek) % kDaysOfWeek;
    return Date::FromSerial(first.Serial() - before);
}

} // namespace

MonthView::MonthView(QWidget* parent) : QTableWidget(kWeeks, kDaysOfWeek, parent) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    for (int column = 0; column < kDaysOfWeek; ++column) {
        // Qt counts from 1, Monday, to 7, Sunday.
        const int weekday = (FirstWeekday() + column + kDaysOfWeek - 1) % kDaysOfWeek + 1;
        const QLocale english(QLocale::English, QLocale::UnitedStates);
        setHorizontalHeaderItem(
            column, new QTableWidgetItem(english.dayName(weekday, QLocale::ShortFormat)));
        for (int row = 0; row < kWeeks; ++row) {
            auto* const cell = new QTableWidgetItem;
            cell->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
            setItem(row, column, cell);
        }
    }
    connect(this, &QTableWidget::cellDoubleClicked, this, &MonthView::ChooseCurrent);
}

void MonthView::ShowMonth(Date day, Date today, const std::map<Date, CalendarDay>& days) {
    first_ = FirstOfPage(day);
    for (int i = 0; i < kWeeks * kDaysOfWeek; ++i) {
        const Date shown = Date::FromSerial(first_.Serial() + i);
        const auto found = days.find(shown);
        ShowDay(*item(i / kDaysOfWeek, i % kDaysOfWeek), shown, shown.Month() == day.Month(),
                shown == today, found == days.end() ? nullptr : &found->second);
    }
    ElideLines();
    const int place = day.Serial() - first_.Serial();
    setCurrentCell(place / kDaysOfWeek, place % kDaysOfWeek);
}

void MonthView::ShowDay(QTableWidgetItem& cell, Date day, bool isInMonth, bool isToday,
                        const CalendarDay* what) {
    QString number = QString::number(day.Day());
    if (isToday) number += QLatin1Char(' ') + tr("Today");
    QStringList lines{number};
    QStringList tip{ToScreen(day.ToText())};
    if (what != nullptr) {
        for (const std::string& line : what->Lines())
            lines << ToScreen(line);
        tip = QStringList{tip.first()} + lines.mid(1);
        if (what->others.size() > 1) {
            tip.removeLast();
            constexpr std::size_t kMostInTip = 20;
            for (std::size_t i = 0; i < what->others.size() && i < kMostInTip; ++i)
                tip << ToScreen(what->others[i]);
            if (what->others.size() > kMostInTip) tip << QStringLiteral("...");
        }
    }
    cell.setData(kLinesRole, lines);
    cell.setToolTip(tip.join(QLatin1Char('\n')));
    cell.setData(Qt::AccessibleTextRole, tip.join(QLatin1String(", ")));
    QFont font = this->font();
    font.setBold(isToday);
    cell.setFont(font);
    // The days of other months can only be seen, not chosen.
    cell.setFlags(isInMonth ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
}

void MonthView::ElideLines() {
    for (int i = 0; i < kWeeks * kDaysOfWeek; ++i) {
        QTableWidgetItem& cell = *item(i / kDaysOfWeek, i % kDaysOfWeek);
        const QFontMetrics metrics(cell.font());
        const int room = columnWidth(i % kDaysOfWeek) - kCellMargin;
        const int most = std::max(1, rowHeight(i / kDaysOfWeek) / metrics.lineSpacing());
        QStringList lines = cell.data(kLinesRole).toStringList();
        if (lines.size() > most) {
            lines = lines.mid(0, most);
            lines.last() += QStringLiteral(" ...");
        }
        for (QString& line : lines)
            line = metrics.elidedText(line, Qt::ElideRight, room);
        cell.setText(lines.join(QLatin1Char('\n')));
    }
}

Date MonthView::CurrentDay() const {
    if (!first_.IsSet() || currentRow() < 0) return {};
    return Date::FromSerial(first_.Serial() + currentRow() * kDaysOfWeek + currentColumn());
}

void MonthView::ChooseCurrent() {
    if (const Date day = CurrentDay(); day.IsSet()) Q_EMIT DayChosen(day);
}

void MonthView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        ChooseCurrent();
        return;
    }
    QTableWidget::keyPressEvent(event);
}

void MonthView::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    ElideLines();
}

void MonthView::showEvent(QShowEvent* event) {
    QTableWidget::showEvent(event);
    ElideLines();
}

} // namespace outlook::screens
