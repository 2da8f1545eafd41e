#include "outlook/Forecast.h"

namespace outlook {

std::string_view FlowName(Flow flow) {
    switch (flow) {
        case Flow::In:
            return "In";
        case Flow::Out:
            return "Out";
        case Flow::Neither:
            break;
    }
    return {};
}

} // namespace outlook
