#include "sumdesk/Calculator.h"

namespace sumdesk {

std::vector<Remembered> Calculator::KnownNumbers() const {
    std::vector<Remembered> known;
    const auto add = [&](const Exact& number) {
        const Exact size = abs(number);
        known.push_back({Shown(size, decimals_), size});
    };
    add(last_);
    if (memory_) add(*memory_);
    return known;
}

Exact Calculator::RoundedAsShown(const Exact& number) const {
    return decimals_ == Decimals::Cents ? ExactOf(Rounded(number, 2)) : number;
}

std::string Calculator::Keep(const SumResult& result) {
    last_ = RoundedAsShown(result.number);
    std::string shown = Shown(last_, decimals_);
    if (!result.isPlain) AddToTape(result.tidy + " = " + shown);
    return shown;
}

std::string Calculator::Enter(std::string_view sum) {
    return Keep(WorkOut(sum, KnownNumbers()));
}

std::string Calculator::Preview(std::string_view sum) const {
    try {
        const SumResult result = WorkOut(sum, KnownNumbers());
        return result.isPlain ? std::string() : Shown(result.number, decimals_);
    } catch (const SumError&) {
        return {};
    }
}

std::string Calculator::Store(std::string_view sum) {
    std::string shown = Enter(sum);
    memory_ = last_;
    AddToTape("MS " + shown);
    return shown;
}

std::string Calculator::ChangeMemory(std::string_view sum, std::string_view name, int sign) {
    const SumResult result = WorkOut(sum, KnownNumbers());
    const Exact changed = memory_.value_or(Exact()) + sign * RoundedAsShown(result.number);
    if (IsTooLarge(changed)) throw SumError("The memory would be too large.", 0);
    std::string shown = Keep(result);
    memory_ = changed;
    AddToTape(std::string(name) + " " + shown + ", M = " + Memory());
    return shown;
}

std::string Calculator::AddToMemory(std::string_view sum) {
    return ChangeMemory(sum, "M+", 1);
}

std::string Calculator::SubtractFromMemory(std::string_view sum) {
    return ChangeMemory(sum, "M-", -1);
}

void Calculator::ClearMemory() {
    memory_.reset();
}

std::string Calculator::Memory() const {
    return memory_ ? Shown(*memory_, decimals_) : std::string();
}

std::string Calculator::TapeText() const {
    std::string text;
    for (const std::string& entry : tape_) {
        text += entry + "\n";
        if (entry.find('\n') != std::string::npos) text += "\n";
    }
    return text;
}

} // namespace sumdesk
