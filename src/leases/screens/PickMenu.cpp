#include "leases/screens/PickMenu.h"

namespace leases::screens {

void AddPickMenu(QMenu& menu, const QString& prefix,
                 const std::function<void(ChargePick pick)>& picked) {
    struct Item {
        const char* name;
        QString text;
        ChargePick pick;
    };
    const bool ticks = prefix == QLatin1String("mnuCheck");
    for (const Item& item :
         {Item{"All", ticks ? QMenu::tr("Tick &All") : QMenu::tr("Select &All"), ChargePick::All},
          Item{"Rent", ticks ? QMenu::tr("Tick &Rent Only") : QMenu::tr("Select &Rent Only"),
               ChargePick::Rent},
          Item{"Other",
               ticks ? QMenu::tr("Tick &Other Charges") : QMenu::tr("Select &Other Charges"),
               ChargePick::Other}}) {
        QAction* const action = menu.addAction(item.text);
        action->setObjectName(prefix + QLatin1String(item.name));
        QObject::connect(action, &QAction::triggered, &menu,
                         [picked, pick = item.pick] { picked(pick); });
    }
}

} // namespace leases::screens
