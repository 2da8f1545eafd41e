#include "core/forms/RecordBar.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QSet>
#include <QTabWidget>
#include <QVariant>
#include <algorithm>

#include "core/RecordKinds.h"
#include "platform/qt/Text.h"

namespace core::forms {

using platform::qt::ToScreen;

namespace {

struct NamedFiller {
    RecordMenu menu;
    std::string name;
    MenuFiller filler;
};

std::vector<NamedFiller>& Fillers() {
    static std::vector<NamedFiller> fillers;
    return fillers;
}

std::vector<std::pair<std::string, RecordPage>>& Pages() {
    static std::vector<std::pair<std::string, RecordPage>> pages;
    return pages;
}

bool IsFilled(RecordMenu menu) {
    return std::ranges::any_of(Fillers(), [menu](const auto& one) { return one.menu == menu; });
}

QAction* AddAction(QMenu& menu, QAction* before, const QString& text, const char* name) {
    auto* const action = new QAction(text, &menu);
    action->setObjectName(QLatin1String(name));
    menu.insertAction(before, action);
    return action;
}

} // namespace

void RegisterRecordMenu(RecordMenu menu, const std::string& name, MenuFiller filler) {
    auto& fillers = Fillers();
    const auto found = std::ranges::find_if(
        fillers, [&](const NamedFiller& one) { return one.menu == menu && one.name == name; });
    if (found == fillers.end()) {
        if (filler) fillers.push_back({menu, name, std::move(filler)});
    } else if (filler) {
        found->filler = std::move(filler);
    } else {
        fillers.erase(found);
    }
}

void RegisterRecordPage(const std::string& name, RecordPage page) {
    auto& pages = Pages();
    const auto found = std::ranges::find(pages, name, &std::pair<std::string, RecordPage>::first);
    if (found == pages.end()) {
        if (page.make) pages.emplace_back(name, std::move(page));
    } else if (page.make) {
        found->second = std::move(page);
    } else {
        pages.erase(found);
    }
}

QString WithFreeMnemonic(const QWidget& form, const QString& title) {
    QSet<QString> taken;
    const auto take = [&taken](const QString& text) {
        taken.insert(QKeySequence::mnemonic(text).toString());
    };
    for (const QWidget* const widget : form.findChildren<QWidget*>()) {
        if (const auto* const label = qobject_cast<const QLabel*>(widget)) take(label->text());
        if (const auto* const button = qobject_cast<const QAbstractButton*>(widget))
            take(button->text());
        if (const auto* const group = qobject_cast<const QGroupBox*>(widget)) take(group->title());
        if (const auto* const tabs = qobject_cast<const QTabWidget*>(widget))
            for (int tab = 0; tab < tabs->count(); ++tab)
                take(tabs->tabText(tab));
        if (const auto* const bar = qobject_cast<const QMenuBar*>(widget))
            for (const QAction* const action : bar->actions())
                take(action->text());
    }
    for (int at = 0; at < title.size(); ++at) {
        const QString marked = QString(title).insert(at, QLatin1Char('&'));
        if (title[at].isLetter() && !taken.contains(QKeySequence::mnemonic(marked).toString()))
            return marked;
    }
    return title;
}

RecordBar::RecordBar(QDialog& form, RecordKind kind, Commands commands)
    : QObject(&form), commands_(std::move(commands)) {
    auto* bar = qobject_cast<QMenuBar*>(form.layout()->menuBar());
    if (!bar) {
        bar = new QMenuBar(&form);
        form.layout()->setMenuBar(bar);
    }
    bar->setObjectName(QStringLiteral("mnuBar"));
    MakeRecordMenu(form, *bar, kind);
    MakeMenu(form, *bar, RecordMenu::Reports, tr("Reports"));
    MakeMenu(form, *bar, RecordMenu::Documents, tr("Documents"));
    MakePages(form, kind);
}

void RecordBar::MakeRecordMenu(QDialog& form, QMenuBar& bar, RecordKind kind) {
    Menu& record = menus_[0];
    const QList<QAction*> own = bar.actions();
    if (own.isEmpty()) {
        record.menu = bar.addMenu(WithFreeMnemonic(form, ToScreen(RecordKindName(kind))));
    } else {
        record.menu = own.front()->menu();
    }
    QMenu& menu = *record.menu;
    menu.setToolTipsVisible(true);
    QAction* const first = menu.actions().value(0);
    apply_ = AddAction(menu, first, tr("&Apply"), "mnuApply");
    apply_->setShortcut(QKeySequence::Save);
    connect(apply_, &QAction::triggered, this, [this] { commands_.apply(); });
    if (first) menu.insertSeparator(first);
    QAction* const close = AddAction(menu, nullptr, tr("&Close"), "mnuClose");
    connect(close, &QAction::triggered, this, [this] { commands_.close(); });
    record.end = menu.insertSeparator(close);
    connect(&menu, &QMenu::aboutToShow, this, [this] { Fill(menus_[0]); });
}

void RecordBar::MakeMenu(QDialog& form, QMenuBar& bar, RecordMenu which, const QString& title) {
    if (!IsFilled(which)) return;
    Menu& made = menus_.at(static_cast<std::size_t>(which));
    made.which = which;
    made.menu = bar.addMenu(WithFreeMnemonic(form, title));
    made.menu->setToolTipsVisible(true);
    connect(made.menu, &QMenu::aboutToShow, this, [this, &made] { Fill(made); });
}

void RecordBar::MakePages(QDialog& form, RecordKind kind) {
    auto* const tabs = form.findChild<QTabWidget*>(QStringLiteral("tabs"));
    if (!tabs) return;
    const QVariant place = tabs->property("addedPagesAt");
    int at = place.isValid() ? place.toInt() : tabs->count();
    for (const auto& [name, page] : Pages()) {
        if (std::ranges::find(page.kinds, kind) == page.kinds.end()) continue;
        QWidget* const widget = page.make(form);
        tabs->insertTab(at++, widget, ToScreen(page.caption));
        pages_.emplace_back(widget, name);
    }
}

void RecordBar::Show(std::vector<Subject> subjects) {
    subjects_ = std::move(subjects);
    for (Menu& menu : menus_)
        if (menu.menu) Fill(menu);
    for (const auto& [widget, name] : pages_) {
        const auto page =
            std::ranges::find(Pages(), name, &std::pair<std::string, RecordPage>::first);
        if (page != Pages().end() && page->second.show) page->second.show(*widget, subjects_);
    }
}

void RecordBar::SetCanApply(bool can) {
    apply_->setEnabled(can);
}

void RecordBar::Fill(Menu& menu) {
    // The action that is running may be one of them.
    for (QAction* const action : menu.added) {
        menu.menu->removeAction(action);
        if (action->menu()) {
            action->menu()->deleteLater();
        } else {
            action->deleteLater();
        }
    }
    menu.added.clear();
    QMenu filled;
    for (const NamedFiller& one : Fillers())
        if (one.menu == menu.which) one.filler({filled, subjects_, commands_.save});
    if (filled.isEmpty() && menu.which != RecordMenu::Record) {
        QAction* const nothing = filled.addAction(tr("None for this record"));
        nothing->setEnabled(false);
        nothing->setToolTip(tr("Nothing is set up for records of this kind"));
    }
    for (QAction* const action : filled.actions()) {
        if (action->menu()) {
            action->menu()->setParent(menu.menu, Qt::Popup);
        } else {
            action->setParent(menu.menu);
        }
        filled.removeAction(action);
        menu.menu->insertAction(menu.end, action);
        menu.added.push_back(action);
    }
}

} // namespace core::forms
