#include "shell/screens/MenuItems.h"

#include <QAction>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

#include "platform/qt/Text.h"

namespace shell::screens {

namespace {

constexpr const char* kTip = "tip";

class ReasonTips : public QObject {
  public:
    explicit ReasonTips(QMenu& menu) : QObject(&menu), menu_(menu) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return QObject::eventFilter(watched, event);
        const auto* const help = static_cast<QHelpEvent*>(event);
        const QAction* const item = menu_.actionAt(help->pos());
        const bool isDisabled = item != nullptr && !item->isEnabled() && !item->isSeparator();
        QToolTip::showText(help->globalPos(), isDisabled ? item->toolTip() : QString(), &menu_);
        return true;
    }

  private:
    QMenu& menu_;
};

} // namespace

void ShowReasons(QMenu& menu) {
    menu.installEventFilter(new ReasonTips(menu));
}

void SetTip(QAction& item) {
    QString tip = item.toolTip();
    const QString key = item.shortcut().toString(QKeySequence::NativeText);
    if (!key.isEmpty()) tip = QStringLiteral("%1 (%2)").arg(tip, key);
    item.setProperty(kTip, tip);
    item.setToolTip(tip);
}

void SetAvailable(QAction& item, std::string_view reason) {
    item.setEnabled(reason.empty());
    const QString tip = item.property(kTip).toString();
    item.setToolTip(reason.empty() ? tip
                                   : tip + QLatin1Char('\n') + platform::qt::ToScreen(reason));
}

} // namespace shell::screens
