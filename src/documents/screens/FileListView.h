#pragma once

#include <QListView>

namespace documents::screens {

/// A list of files. A double click or Enter chooses one, Insert and Delete ask for their commands,
/// F2 edits a description.
class FileListView : public QListView {
    Q_OBJECT

  public:
    explicit FileListView(QWidget* parent = nullptr);

    /// What an empty list says instead.
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
