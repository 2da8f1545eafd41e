#pragma once

#include <cstddef>
#include <exception>
#include <functional>

#include "platform/printing/FlowSink.h"
#include "platform/printing/PageSink.h"

namespace reports::screens {

/// Called with the amount done so far; returns false to stop the work.
using Progress = std::function<bool(std::size_t done)>;

/// Thrown by a sink to stop the work. It is not an error.
class Cancelled : public std::exception {
  public:
    const char* what() const noexcept override { return "Cancelled."; }
};

/// Passes pages on and asks after each one whether to continue.
class WatchedPages : public platform::PageSink {
  public:
    WatchedPages(platform::PageSink& pages, Progress progress)
        : pages_(pages), progress_(std::move(progress)) {}

    void BeginPages(const platform::DocumentInfo& info) override { pages_.BeginPages(info); }
    void AddPage(platform::PrintedPage page) override;
    void EndPages() override { pages_.EndPages(); }

  private:
    platform::PageSink& pages_;
    Progress progress_;
    std::size_t done_ = 0;
};

/// Passes a flow on and asks now and then whether to continue.
class WatchedFlow : public platform::FlowSink {
  public:
    WatchedFlow(platform::FlowSink& flow, Progress progress)
        : flow_(flow), progress_(std::move(progress)) {}

    void BeginFlow(const platform::DocumentInfo& info) override { flow_.BeginFlow(info); }
    void Paragraph(const platform::PrintStyle& style, std::string_view text) override;
    void BeginTable(const platform::PrintStyle& style, const platform::PrintTable& table,
                    std::span<const platform::Twips> widths) override;
    void TableRow(std::span<const std::string_view> cells) override;
    void EndTable() override { flow_.EndTable(); }
    void Rule(const platform::PrintStyle& style, std::string_view caption) override;
    void EndFlow() override { flow_.EndFlow(); }

  private:
    void Count();

    platform::FlowSink& flow_;
    Progress progress_;
    std::size_t done_ = 0;
};

} // namespace reports::screens
