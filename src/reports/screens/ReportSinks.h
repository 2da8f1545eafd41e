#pragma once

#include <cstddef>
#include <exception>
#include <functional>

#include "platform/printing/FlowSink.h"
#include "platform/printing/PageSink.h"

namespace reports::screens {

/// Called with what is done so far; false stops the work.
using Progress = std::function<bool(std::size_t done)>;

/// What a sink throws when the work is to stop. It is no failure.
class Cancelled : public std::exception {
  public:
    const char* what() const noexcept override { return "Cancelled."; }
};

/// Hands pages on and asks after each one whether to go on.
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

/// Hands a flow on and asks now and then whether to go on.
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
