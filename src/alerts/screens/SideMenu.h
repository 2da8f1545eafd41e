#pragma once

#include <QString>
#include <QWidget>

class QToolButton;
class QVBoxLayout;

namespace alerts::screens {

/// Groups in a column, each of which a click on its heading collapses. A group holds a widget, or
/// items to choose.
class SideMenu : public QWidget {
    Q_OBJECT

  public:
    explicit SideMenu(QWidget* parent = nullptr);

    /// Adds a group with a widget, which it owns; a widget that can expand takes the remaining
    /// room.
    void AddGroup(const QString& title, QWidget* content);
    /// Adds a group of items, to be filled by AddItem.
    QWidget* AddGroup(const QString& title);
    /// Adds an item, whose object name is its key.
    QToolButton* AddItem(QWidget* group, const QString& key, const QString& text);
    /// Keeps the groups together at the top.
    void EndGroups();

  private:
    /// Adds a widget to the tab order, which goes through headings, contents and items in the order
    /// in which they were added.
    void AppendTabStop(QWidget* stop);

    QVBoxLayout* rows_;
    QWidget* lastStop_ = nullptr;
};

} // namespace alerts::screens
