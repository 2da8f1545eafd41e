#include "core/forms/Notice.h"

#include <QLabel>

namespace core::forms {

QLabel* MakeNotice(QWidget& screen, const QString& name) {
    auto* const notice = new QLabel(&screen);
    notice->setObjectName(name);
    notice->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);
    notice->setMargin(6);
    notice->setStyleSheet(QStringLiteral("background: #FFFF80; color: black"));
    notice->hide();
    return notice;
}

} // namespace core::forms
