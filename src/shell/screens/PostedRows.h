#pragma once

#include <QAbstractTableModel>

#include "shell/RunDigest.h"

namespace shell::screens {

/// The rows of a digest: first the records that were passed over, then what was posted.
class PostedRows : public QAbstractTableModel {
    Q_OBJECT

  public:
    explicit PostedRows(const RunDigest& digest, QObject* parent = nullptr)
        : QAbstractTableModel(parent), digest_(digest) {}

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The posted row that a line shows; null for a record that was passed over.
    const DigestRow* PostedAt(int line) const;

  private:
    const RunDigest& digest_;
};

} // namespace shell::screens
