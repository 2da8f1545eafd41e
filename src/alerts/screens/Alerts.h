#pragma once

#include <QWidget>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "core/RecordKinds.h"

class QAction;
class QLabel;
class QTimer;
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

    /// Reads the figures, the alerts and the notes again. If the alerts can't be listed, the list
    /// shows why, and the Error is thrown once the notes have been read; the same failure isn't
    /// thrown again until a refresh has succeeded.
    void Refresh();
    /// Writes the notes if they were changed. Throws Error if they can't be written; a timer then
    /// tries again until they are.
    void SaveNotes();
    std::string NotesText() const;

    /// Makes an item of the side menu trigger the action; it is enabled while the action is.
    void BindItem(const QString& key, QAction& action);

  Q_SIGNALS:
    /// Emitted if the notes couldn't be saved, with the reason; emitted with an empty reason once
    /// they are saved again.
    void NotesFault(const QString& reason);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void SetUpAlerts();
    void SetUpSide();
    void ShowInfo();
    void ShowAlerts();
    void ShowAlertsFault(const QString& reason);
    void AddRow(const QString& text, std::string_view picture);
    void LoadNotes();
    void TryToSaveNotes();
    void OpenAlert() const;

    QSplitter* parts_;
    QLabel* count_;
    QListWidget* list_;
    SideMenu* smnu_;
    QTreeWidget* info_;
    QPlainTextEdit* notes_;
    QTimer* saving_; ///< runs from the last change of the notes until they are saved, or tried
    std::string toldFault_;
    std::vector<std::pair<core::RecordKind, std::int32_t>>
        records_; ///< kind and id, a pair each row
};

} // namespace alerts::screens
