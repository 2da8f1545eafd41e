#include "sumdesk/CalculatorPage.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <array>

#include "platform/qt/Announce.h"
#include "platform/qt/Text.h"
#include "ui_CalculatorPage.h"

namespace sumdesk {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

struct Key {
    const char* text;
    const char* inserted;
    const char* name; ///< for screen readers
};

constexpr int kColumns = 4;
constexpr std::array<Key, 18> kKeys = {{{"(", "(", "Opening bracket"},
                                        {")", ")", "Closing bracket"},
                                        {"%", "%", "Percent"},
                                        {"\u00F7", "\u00F7", "Divided by"},
                                        {"7", "7", "7"},
                                        {"8", "8", "8"},
                                        {"9", "9", "9"},
                                        {"\u00D7", "\u00D7", "Times"},
                                        {"4", "4", "4"},
                                        {"5", "5", "5"},
                                        {"6", "6", "6"},
                                        {"\u2212", "-", "Minus"},
                                        {"1", "1", "1"},
                                        {"2", "2", "2"},
                                        {"3", "3", "3"},
                                        {"+", "+", "Plus"},
                                        {"0", "0", "0"},
                                        {".", ".", "Point"}}};

constexpr double kSumSize = 1.5;
constexpr double kResultSize = 2;
constexpr double kKeySize = 1.25;

void Enlarge(QWidget& control, double factor) {
    QFont font = control.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    control.setFont(font);
}

QPushButton* MakeKey(QWidget& page, const QString& text, const QString& name) {
    auto* const key = new QPushButton(text, &page);
    key->setAccessibleName(name);
    // The same can be typed on the keyboard; after a click, the line keeps the focus.
    key->setFocusPolicy(Qt::NoFocus);
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Enlarge(*key, kKeySize);
    key->setMinimumWidth(key->fontMetrics().height() * 2);
    return key;
}

bool IsSign(const QString& text) {
    return QStringLiteral("+-*/x:%)\u00D7\u00F7\u2212").contains(text);
}

/// Returns a key as it appears in a sum.
QString InSum(const QString& typed) {
    if (typed == QLatin1String("*") || typed == QLatin1String("x")) return QStringLiteral("\u00D7");
    if (typed == QLatin1String("/")) return QStringLiteral("\u00F7");
    return typed;
}

} // namespace

CalculatorPage::CalculatorPage(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::CalculatorPage>()) {
    ui_->setupUi(this);
    setFocusProxy(ui_->txtSum);
    Enlarge(*ui_->txtSum, kSumSize);
    Enlarge(*ui_->lblResult, kResultSize);
    for (QLabel* const line : {ui_->lblResult, ui_->lblFault})
        line->setMinimumHeight(line->minimumSizeHint().height());
    ui_->txtSum->installEventFilter(this);
    connect(ui_->txtSum, &QLineEdit::textChanged, this, &CalculatorPage::ShowPreview);
    connect(ui_->chkCents, &QCheckBox::toggled, this, [this](bool on) {
        calculator_->SetDecimals(on ? Decimals::Cents : Decimals::AsNeeded);
        ShowPreview();
        ShowMemory();
    });
    MakeKeypad();
    ConnectMemory();
}

CalculatorPage::~CalculatorPage() = default;

void CalculatorPage::MakeKeypad() {
    int place = 0;
    const auto add = [&](QPushButton* key, int width = 1) {
        ui_->keypad->addWidget(key, place / kColumns, place % kColumns, 1, width);
        place += width;
    };
    for (const Key& one : kKeys) {
        auto* const key = MakeKey(*this, QString::fromUtf8(one.text), QString::fromUtf8(one.name));
        const QString inserted = QString::fromUtf8(one.inserted);
        connect(key, &QPushButton::clicked, this, [this, inserted] {
            ui_->txtSum->setFocus();
            Insert(inserted);
        });
        add(key);
    }
    auto* const back = MakeKey(*this, QStringLiteral("\u232B"), tr("Backspace"));
    connect(back, &QPushButton::clicked, ui_->txtSum, &QLineEdit::backspace);
    add(back);
    auto* const clear = MakeKey(*this, QStringLiteral("C"), tr("Clear"));
    clear->setToolTip(tr("Clear the sum (Esc)"));
    connect(clear, &QPushButton::clicked, this, &CalculatorPage::Clear);
    add(clear);
    auto* const equals = MakeKey(*this, QStringLiteral("="), tr("Equals"));
    equals->setObjectName(QStringLiteral("cmdEquals"));
    equals->setToolTip(tr("Work out the sum (Enter)"));
    connect(equals, &QPushButton::clicked, this, &CalculatorPage::Enter);
    add(equals, kColumns);
}

void CalculatorPage::ConnectMemory() {
    const auto connectTo = [this](QPushButton* button, const char* keys, auto command) {
        const QString shortcut = QLatin1String(keys);
        button->setToolTip(tr("%1 (%2)").arg(button->accessibleName(), shortcut));
        connect(button, &QPushButton::clicked, this, command);
        // A shortcut of the button itself would act only after the button has been shown pressed.
        connect(new QShortcut(QKeySequence(shortcut), this), &QShortcut::activated, button,
                &QPushButton::click);
    };
    connectTo(ui_->cmdMemoryClear, "Ctrl+L", [this] {
        calculator_->ClearMemory();
        ShowMemory();
    });
    connectTo(ui_->cmdMemoryRecall, "Ctrl+R", [this] { Insert(ToScreen(calculator_->Memory())); });
    connectTo(ui_->cmdMemoryStore, "Ctrl+M", [this] { Remember(&Calculator::Store); });
    connectTo(ui_->cmdMemoryAdd, "Ctrl+P", [this] { Remember(&Calculator::AddToMemory); });
    connectTo(ui_->cmdMemorySubtract, "Ctrl+Shift+P",
              [this] { Remember(&Calculator::SubtractFromMemory); });
    ui_->cmdMemoryClear->setEnabled(false);
    ui_->cmdMemoryRecall->setEnabled(false);
}

bool CalculatorPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const auto* const press = static_cast<QKeyEvent*>(event);
    switch (press->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Equal:
            Enter();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            Browse(press->key() == Qt::Key_Up ? -1 : 1);
            return true;
        default:
            break;
    }
    const bool isCommand = (press->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0 &&
                           (press->modifiers() & Qt::GroupSwitchModifier) == 0;
    const QString text = press->text();
    if (isCommand || text.isEmpty() || !text.front().isPrint()) return false;
    Insert(InSum(text));
    return true;
}

void CalculatorPage::Insert(const QString& text) {
    QLineEdit& line = *ui_->txtSum;
    const bool isResult =
        !result_.isEmpty() && line.selectedText() == line.text() && line.text() == result_;
    if (isResult && IsSign(text)) line.end(false);
    line.insert(text);
}

void CalculatorPage::Enter() {
    const QString sum = ui_->txtSum->text();
    if (!result_.isEmpty() && sum == result_) return;
    Run([&] { return calculator_->Enter(FromScreen(sum)); });
}

void CalculatorPage::Remember(MemoryCommand command) {
    const std::string sum = FromScreen(ui_->txtSum->text());
    Run([&] { return (calculator_->*command)(sum); });
}

void CalculatorPage::Run(const std::function<std::string()>& work) {
    const QString sum = ui_->txtSum->text();
    ui_->txtSum->setFocus();
    try {
        result_ = ToScreen(work());
    } catch (const SumError& fault) {
        ui_->lblFault->setText(ToScreen(fault.what()));
        platform::qt::Announce(*ui_->lblFault);
        const std::string before = FromScreen(sum).substr(0, fault.Position());
        ui_->txtSum->setCursorPosition(static_cast<int>(ToScreen(before).size()));
        return;
    }
    if (sums_.isEmpty() || sums_.back() != sum) sums_ << sum;
    browsed_ = sums_.size();
    ui_->txtSum->setText(result_);
    ui_->txtSum->selectAll();
    ui_->lblResult->setText(QStringLiteral("= ") + result_);
    platform::qt::Announce(*ui_->lblResult);
    ShowMemory();
    Q_EMIT TapeChanged();
}

void CalculatorPage::ShowPreview() {
    ui_->lblFault->clear();
    const QString preview = ToScreen(calculator_->Preview(FromScreen(ui_->txtSum->text())));
    ui_->lblResult->setText(preview.isEmpty() ? QString() : QStringLiteral("= ") + preview);
}

void CalculatorPage::ShowMemory() {
    const QString memory = ToScreen(calculator_->Memory());
    ui_->lblMemory->setText(memory.isEmpty() ? QString() : tr("M = %1").arg(memory));
    ui_->cmdMemoryClear->setEnabled(calculator_->HasMemory());
    ui_->cmdMemoryRecall->setEnabled(calculator_->HasMemory());
}

void CalculatorPage::Browse(int step) {
    const qsizetype place = browsed_ + step;
    if (place < 0 || place > sums_.size()) return;
    browsed_ = place;
    ui_->txtSum->setText(place < sums_.size() ? sums_[place] : QString());
}

void CalculatorPage::Clear() {
    result_.clear();
    ui_->txtSum->clear();
    ui_->lblFault->clear();
    browsed_ = sums_.size();
    ui_->txtSum->setFocus();
}

} // namespace sumdesk
