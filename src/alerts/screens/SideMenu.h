#pragma once

#include <QString>
#include <QWidget>

class QToolButton;
class QVBoxLayout;

namespace alerts::screens {

/// Groups below one another, each of which a click on its heading folds away. A group holds a
/// widget, or items to choose.
class SideMenu : public QWidget {
    Q_OBJECT

  public:
    explicit SideMenu(QWidget* parent = nullptr);

    /// A group around a widget, which it takes over; one that may grow takes what room is left.
    void AddGroup(const QString& title, QWidget* content);
    /// A group of items, to be filled by AddItem.
    QWidget* AddGroup(const QString& title);
    /// An item is found by its key, which is its object name.
    QToolButton* AddItem(QWidget* group, const QString& key, const QString& text);
    /// Keeps the groups together at the top.
    void EndGroups();

  private:
    /// The Tab key goes through headings, contents and items in the order they were added.
    void AppendTabStop(QWidget* stop);

    QVBoxLayout* rows_;
    QWidget* lastStop_ = nullptr;
};

} // namespace alerts::screens
