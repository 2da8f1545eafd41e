#pragma once

#include <QVBoxLayout>
#include <QWidget>

namespace records::screens {

/// Puts a panel on a tab's page, under the name that its settings are stored by.
template <class Panel>
Panel* PlacePanel(Panel* panel, QWidget& page, const char* name) {
    panel->setObjectName(QLatin1String(name));
    QLayout* layout = page.layout();
    if (!layout) layout = new QVBoxLayout(&page);
    layout->addWidget(panel);
    return panel;
}

} // namespace records::screens
