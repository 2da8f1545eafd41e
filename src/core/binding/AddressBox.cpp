#include "core/binding/AddressBox.h"

#include <QLineEdit>
#include <QMouseEvent>

#include "core/References.h"
#include "platform/dialogs/Desktop.h"
#include "platform/qt/Text.h"

namespace core::binding {

namespace {

using platform::qt::FromScreen;

class ClickWatcher : public QObject {
  public:
    ClickWatcher(QLineEdit& box, AddressKind kind) : QObject(&box), kind_(kind) {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const box = static_cast<const QLineEdit*>(watched);
        if (event->type() == QEvent::MouseButtonPress && !box->isModified() &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            OpenAddress(FromScreen(box->text().trimmed()));
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    void OpenAddress(const std::string& address) const {
        if (address.empty()) return;
        if (kind_ == AddressKind::Mail) {
            platform::TheDesktop().WriteMail(address);
        } else {
            platform::TheDesktop().OpenWebPage(address);
        }
    }

    AddressKind kind_;
};

void FillEmpty(QLineEdit* box, const std::string& text) {
    if (box != nullptr && box->text().isEmpty()) box->setText(platform::qt::ToScreen(text));
}

} // namespace

void OpenOnClick(QLineEdit& box, AddressKind kind) {
    new ClickWatcher(box, kind);
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
