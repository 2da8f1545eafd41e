#pragma once

#include <string>

#include "platform/printing/FlowSink.h"
#include "platform/printing/PrintedPage.h"

namespace platform {

/// Receives the finished pages one by one, in order, to keep, write or show them. Its exceptions
/// end the document and reach the caller of the surface.
class PageSink {
  public:
    virtual ~PageSink() = default;
    virtual void BeginPages(const DocumentInfo& info) = 0;
    virtual void AddPage(PrintedPage page) = 0;
    virtual void EndPages() = 0;
};

} // namespace platform
