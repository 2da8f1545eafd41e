#pragma once

#include <QWidget>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

class QAction;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QSplitter;
class QTreeWidget;

namespace alerts::screens {

class SideMenu;

/// The home page: what needs attention, and beside it the figures of the portfolio, the wizards and
/// the notes.
class Alerts : public QWidget {
    Q_OBJECT

  public:
    explicit Alerts(QWidget* parent = nullptr);

    /// Works out everything anew. What fails in the figures or the alerts is thrown when the notes
    /// have been read, so that nothing is typed over them.
    void Refresh();
    /// Writes the notes if they were changed. An Error that says why when they can't be written.
    void SaveNotes();
    std::string NotesText() const;

    /// An item of the side menu does what the action does, and can be chosen when that can.
    void BindItem(const QString& key, QAction& action);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void SetUpAlerts();
    void SetUpSide();
    void ShowInfo();
    void ShowAlerts();
    void LoadNotes();
    void OpenAlert() const;

    QSplitter* parts_;
    QLabel* count_;
    QListWidget* list_;
    SideMenu* smnu_;
    QTreeWidget* info_;
    QPlainTextEdit* notes_;
    std::vector<std::pair<std::int16_t, std::int32_t>> records_; ///< kind and id, a pair each row
};

} // namespace alerts::screens
