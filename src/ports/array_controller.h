// ArrayController: holds the records that a table shows, and knows which one is selected.
#pragma once

#include "support/dnssd_service.h"

#include <optional>

namespace kelvo {

/// Main thread only.
class ArrayController {
public:
    virtual ~ArrayController() = default;

    /// Shows these records instead of the earlier ones, in this order; none for no content. A
    /// selected record that is still among them stays selected.
    virtual void setContent(const std::optional<DNSSD_Services>& content) = 0;

    /// What was set last.
    virtual std::optional<DNSSD_Services> content() const = 0;

    /// The records as they stand in the table, top to bottom; nothing when they cannot be had.
    virtual std::optional<DNSSD_Services> arrangedObjects() const = 0;

    /// The place of the selected record in the arranged ones, or -1.
    virtual qsizetype selectionIndex() const = 0;
};

} // namespace kelvo
