#include "core/binding/AddressBox.h"

#include <QAction>
#include <QLineEdit>
#include <QMouseEvent>

#include "core/References.h"
#include "platform/dialogs/Desktop.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"

namespace core::binding {

namespace {

using platform::qt::FromScreen;

void OpenAddress(const QLineEdit& box, AddressKind kind) {
    const std::string address = FromScreen(box.text().trimmed());
    if (address.empty()) return;
    if (kind == AddressKind::Mail) {
        platform::TheDesktop().WriteMail(address);
    } else {
        platform::TheDesktop().OpenWebPage(address);
    }
}

class ClickWatcher : public QObject {
  public:
    ClickWatcher(QLineEdit& box, AddressKind kind) : QObject(&box), kind_(kind) {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const box = static_cast<const QLineEdit*>(watched);
        if (event->type() == QEvent::MouseButtonPress && !box->isModified() &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            OpenAddress(*box, kind_);
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    AddressKind kind_;
};

void FillEmpty(QLineEdit* box, const std::string& text) {
    if (box != nullptr && box->text().isEmpty()) box->setText(platform::qt::ToScreen(text));
}

} // namespace

void OpenOnClick(QLineEdit& box, AddressKind kind) {
    new ClickWatcher(box, kind);
}

void OpenByIcon(QLineEdit& box, AddressKind kind) {
    const bool isMail = kind == AddressKind::Mail;
    QAction* const open = box.addAction(
        platform::qt::LoadIcon(isMail ? QStringLiteral("mail") : QStringLiteral("web")),
        QLineEdit::TrailingPosition);
    open->setObjectName(QStringLiteral("actOpen"));
    open->setToolTip(isMail ? QLineEdit::tr("Write a mail to this address")
                            : QLineEdit::tr("Open this page in the browser"));
    QObject::connect(open, &QAction::triggered, &box, [&box, kind] { OpenAddress(box, kind); });
    const auto offer = [&box, open] { open->setEnabled(!box.text().trimmed().isEmpty()); };
    QObject::connect(&box, &QLineEdit::textChanged, open, offer);
    offer();
}

void FillPlaceByZip(QLineEdit& zip, const PlaceBoxes& boxes) {
    QObject::connect(&zip, &QLineEdit::editingFinished, &zip, [&zip, boxes] {
        const auto place = ZipLookup(FromScreen(zip.text()));
        if (!place) return;
        FillEmpty(boxes.city, place->city);
        FillEmpty(boxes.state, place->state);
        FillEmpty(boxes.county, place->county);
    });
}

} // namespace core::binding
