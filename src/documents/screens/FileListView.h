#pragma once

#include <QListView>

namespace documents::screens {

/// A list of files. A double click or Enter opens one, Insert and Delete emit their commands, F2
/// edits a description.
class FileListView : public QListView {
    Q_OBJECT

  public:
    explicit FileListView(QWidget* parent = nullptr);

    /// Sets the text that an empty list shows.
    void SetEmptyText(const QString& text);

  Q_SIGNALS:
    void FileChosen();
    void AddAsked();
    void DeleteAsked();
    void SelectionMoved();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    QString emptyText_;
};

} // namespace documents::screens
