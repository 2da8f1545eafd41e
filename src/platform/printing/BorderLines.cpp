#include "platform/printing/PrintTable.h"

namespace platform {

BorderLines LinesOf(TableBorder border) {
    switch (border) {
        case TableBorder::None:
            return {false, false, false, false, false, false};
        case TableBorder::Bottom:
            return {false, true, false, false, false, false};
        case TableBorder::Top:
            return {true, false, false, false, false, false};
        case TableBorder::TopBottom:
            return {true, true, false, false, false, false};
        case TableBorder::Box:
            return {true, true, true, false, false, false};
        case TableBorder::Columns:
            return {false, false, false, true, false, false};
        case TableBorder::ColTopBottom:
            return {true, true, false, true, false, false};
        case TableBorder::BelowHeader:
            return {false, false, false, false, true, false};
        case TableBorder::BoxRows:
            return {true, true, true, false, true, true};
        case TableBorder::BoxColumns:
            return {true, true, true, true, false, false};
        case TableBorder::All:
            break;
    }
    return {true, true, true, true, true, true};
}

} // namespace platform
