#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include "platform/qt/Text.h"

namespace platform::qt {

namespace {

bool isDismissed = false;

QMessageBox::Icon Picture(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::Critical:
            return QMessageBox::Critical;
        case Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

/// Makes a box wide enough for the lines of its text, which it would otherwise break a second time.
/// A text without line breaks, or with lines as long as paragraphs, is left to the box.
void KeepLines(QMessageBox& box) {
    constexpr int kBesideTheText = 120; // the icon and the margins
    constexpr int kSmallScreen = 1024;
    constexpr int kBesideTheBox = 480; // what a box leaves free on a larger screen
    auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (label == nullptr || !box.text().contains(u'\n')) return;
    const int screen = box.screen()->availableSize().width();
    const int room = (screen <= kSmallScreen ? screen : screen - kBesideTheBox) - kBesideTheText;
    const int wanted = label->sizeHint().width();
    if (wanted <= room) label->setMinimumWidth(wanted);
}

class MessageBoxes : public Dialogs {
  public:
    void ShowMessage(std::string_view title, std::string_view text, Icon icon) override {
        Ask(title, text, icon, QMessageBox::Ok);
    }
    bool AskYesNo(std::string_view title, std::string_view text, Icon icon) override {
        return Ask(title, text, icon, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
    }

  private:
    static int Ask(std::string_view title, std::string_view text, Icon icon,
                   QMessageBox::StandardButtons buttons) {
        if (isDismissed) return QMessageBox::NoButton;
        // The wait cursor of the work that asks must not cover its question.
        const QCursor* const busy = QApplication::overrideCursor();
        if (busy) QApplication::setOverrideCursor(Qt::ArrowCursor);
        QMessageBox box(Picture(icon), ToScreen(title),
                        ToScreen(text).remove(QChar::CarriageReturn), buttons,
                        QApplication::activeWindow());
        box.setTextFormat(Qt::PlainText);
        KeepLines(box);
        // Every question is about something that can't be undone: an accidental Enter must not
        // agree.
        if (buttons.testFlag(QMessageBox::No)) {
            box.setDefaultButton(QMessageBox::No);
            box.setEscapeButton(QMessageBox::No);
        }
        const int answer = box.exec();
        if (busy) QApplication::restoreOverrideCursor();
        return answer;
    }
};

} // namespace

void DismissDialogs() {
    isDismissed = true;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const dialog = qobject_cast<QDialog*>(window);
        if (dialog != nullptr && dialog->isModal() && dialog->isVisible()) dialog->reject();
    }
}

std::unique_ptr<Dialogs> MakeDialogs() {
    return std::make_unique<MessageBoxes>();
}

} // namespace platform::qt
