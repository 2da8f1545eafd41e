#pragma once

#include <QWidget>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QTreeWidget;

namespace shell::screens {

/// What needs attention, the figures of the portfolio and the notes, side by side.
class PlainAlerts : public QWidget {
    Q_OBJECT

  public:
    explicit PlainAlerts(QWidget* parent = nullptr);

    void Refresh();
    /// An Error that says why when they can't be written.
    void SaveNotes();
    std::string NotesText() const;

  private:
    void ShowSummary();
    void ShowAlerts();
    void OpenAlert(int row) const;

    QLabel* count_;
    QListWidget* list_;
    QTreeWidget* summary_;
    QPlainTextEdit* notes_;
    std::vector<std::pair<std::int16_t, std::int32_t>> records_;
};

} // namespace shell::screens
