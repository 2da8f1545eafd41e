#pragma once

#include <string>

#include "platform/printing/FlowSink.h"
#include "platform/printing/PrintedPage.h"

namespace platform {

/// Where finished pages go, one by one, in order. A sink may keep them, write them or show them;
/// what it throws ends the document and reaches the caller of the surface.
class PageSink {
  public:
    virtual ~PageSink() = default;
    virtual void BeginPages(const DocumentInfo& info) = 0;
    virtual void AddPage(PrintedPage page) = 0;
    virtual void EndPages() = 0;
};

} // namespace platform
