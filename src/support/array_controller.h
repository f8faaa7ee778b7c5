// ArrayController: the records that a table shows, and which of them is selected.
#pragma once

#include "support/dnssd_service.h"

#include <functional>
#include <optional>
#include <utility>

namespace kelvo {

/// Main thread only.
class ArrayController {
public:
    /// From now on `show` is called after each `setContent`; it brings the selection up to date.
    void setShow(std::function<void()> show) { fShow = std::move(show); }

    /// These records instead of the earlier ones, in this order; none for no content.
    void setContent(const std::optional<DNSSD_Services>& content) {
        fContent = content;
        if (fShow)
            fShow();
    }

    /// What was set last.
    const std::optional<DNSSD_Services>& content() const { return fContent; }

    /// The place of the selected record in the content, or -1.
    qsizetype selectionIndex() const { return fSelectionIndex; }

    /// For whoever shows the records: another record, or none, is selected now.
    void setSelectionIndex(qsizetype index) { fSelectionIndex = index; }

private:
    std::function<void()> fShow;
    std::optional<DNSSD_Services> fContent;
    qsizetype fSelectionIndex = -1;
};

} // namespace kelvo
