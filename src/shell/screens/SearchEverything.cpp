#include "shell/screens/SearchEverything.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>

#include "core/Globals.h"
#include "shell/screens/SearchItems.h"

namespace shell::screens {

SearchEverything::SearchEverything(QMainWindow& window) : QObject(&window), window_(window) {
    qApp->installEventFilter(this);
}

SearchEverything::~SearchEverything() {
    Release();
}

void SearchEverything::Show() {
    if (box_) {
        if (box_->isMinimized()) box_->showNormal();
        box_->raise();
        box_->activateWindow();
        return;
    }
    if (!finder_) finder_ = std::make_unique<search::Finder>(core::App().Connection);
    CollectItems();
    // The chosen item opens after the box has closed, and the program may end in between.
    const auto open = [self = QPointer<SearchEverything>(this)](std::size_t item) {
        if (self) self->openers_[item]();
    };
    box_ = new search::screens::frmSearch(*finder_, open);
    box_->Setup();
}

void SearchEverything::Release() {
    // The box reads through the finder, so it is deleted first.
    delete box_;
    finder_.reset();
}

void SearchEverything::CollectItems() {
    std::vector<SearchItem> found;
    AddCategories(window_, found);
    AddReports(window_, found);
    AddCommands(window_, found);
    AddSettings(window_, found);
    openers_.clear();
    std::vector<search::Item> items;
    for (SearchItem& each : found) {
        items.push_back(std::move(each.item));
        openers_.push_back(std::move(each.open));
    }
    finder_->SetItems(std::move(items));
}

bool SearchEverything::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) return QObject::eventFilter(watched, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    const bool isSearch = key->key() == Qt::Key_K && key->modifiers() == Qt::ControlModifier;
    if (!isSearch) return QObject::eventFilter(watched, event);
    event->ignore(); // leaves the key to the menu item
    return true;
}

} // namespace shell::screens
