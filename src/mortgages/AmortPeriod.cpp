#include "mortgages/AmortPeriod.h"

namespace mortgages {

namespace {

void PutDigits(char* place, unsigned number, int digits) {
    for (int i = digits - 1; i >= 0; --i, number /= 10)
        place[i] = static_cast<char>('0' + number % 10);
}

} // namespace

DueText::DueText(std::chrono::year_month_day day) {
    text_[2] = '/';
    text_[5] = '/';
    PutDigits(text_.data(), static_cast<unsigned>(day.month()), 2);
    PutDigits(text_.data() + 3, static_cast<unsigned>(day.day()), 2);
    PutDigits(text_.data() + 6, static_cast<unsigned>(static_cast<int>(day.year())), 4);
}

} // namespace mortgages
