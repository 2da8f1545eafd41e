#pragma once

#include <QTreeWidget>

#include "leases/PreviewRow.h"

namespace leases::screens {

/// The rows that submitting will write, to look at before.
class PreviewList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit PreviewList(QWidget* parent = nullptr);

    void ShowPreview(const PreviewRows& rows);

  protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace leases::screens
