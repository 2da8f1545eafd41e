#include "reports/screens/ReportIcons.h"

#include <array>

#include "platform/qt/Icons.h"

namespace reports::screens {

QIcon ReportIcon(std::int16_t code) {
    static constexpr std::array<const char*, 9> kNames = {"reports", "accounts",  "leases",
                                                          "car",     "mortgages", "property",
                                                          "tenants", "financial", "workorders"};
    const auto at = static_cast<std::size_t>(code);
    return platform::qt::LoadIcon(QLatin1String(at < kNames.size() ? kNames.at(at) : kNames[0]));
}

} // namespace reports::screens
