#pragma once

#include <QWidget>

class QPushButton;

namespace core::forms {

/// The row of buttons at the bottom of every record screen. Each button's property "tag" is its
/// command: HELP, CANCEL, APPLY, CLOSE.
class ActionBar : public QWidget {
    Q_OBJECT

  public:
    explicit ActionBar(QWidget* parent = nullptr);

    QPushButton& Apply() { return *apply_; }
    QPushButton& Cancel() { return *cancel_; }
    QPushButton& Close() { return *close_; }
    QPushButton& Help() { return *help_; }

  Q_SIGNALS:
    void ApplyClicked();
    void CancelClicked();
    void CloseClicked();
    void HelpClicked();

  private:
    QPushButton* help_;
    QPushButton* cancel_;
    QPushButton* apply_;
    QPushButton* close_;
};

} // namespace core::forms
