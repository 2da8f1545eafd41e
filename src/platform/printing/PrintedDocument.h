#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/printing/DocumentFlow.h"
#include "platform/printing/PageSink.h"

namespace platform {

/// A document in memory: its finished pages, and its flow.
class PrintedDocument : public PageSink {
  public:
    const DocumentInfo& Info() const { return info_; }
    std::size_t PageCount() const { return pages_.size(); }
    /// Returns a page, counted from 0.
    PrintedPage Page(std::size_t index) const;
    /// Returns true once EndPages was called: no more pages will be added.
    bool IsComplete() const { return complete_; }
    void Clear();

    DocumentFlow& Flow() { return flow_; }
    const DocumentFlow& Flow() const { return flow_; }

    void BeginPages(const DocumentInfo& info) override;
    void AddPage(PrintedPage page) override;
    void EndPages() override;

  private:
    DocumentInfo info_;
    std::vector<std::string> pages_; ///< packed: a long report has ten thousands of them
    DocumentFlow flow_;
    bool complete_ = false;
};

} // namespace platform
