#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/printing/PageMaker.h"
#include "platform/printing/PrintSurface.h"

namespace platform {

struct PrintSurface::State {
    State(FontMetrics& metrics, PageSink* pages, FlowSink* flowSink)
        : maker(metrics, pages), flow(flowSink) {}

    DocumentInfo info;
    PageMaker maker;
    FlowSink* flow;
    std::vector<MeasuredLine> lines; ///< of the paragraph that is being printed
    PrintTable table;
    std::unique_ptr<TableRows> rows; ///< of the table between AddTable and EndTable
};

} // namespace platform
