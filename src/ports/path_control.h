// PathControl: a row of path parts, each of which can be clicked.
#pragma once

#include "ports/control.h"

#include <QString>

#include <optional>
#include <vector>

namespace kelvo {

/// Main thread only. Locations are texts as fileUrl makes them (support/file_url.h).
class PathControl : public Control {
public:
    struct Item {
        QString title; ///< the name of one part, as people read it
        QString url;   ///< the location down to that part

        bool operator==(const Item&) const = default;
    };

    /// Shows `url`, part by part; an empty text shows nothing.
    virtual void setUrl(const QString& url) = 0;

    /// The location shown last, with no part of it chosen; nothing when there is none.
    virtual std::optional<QString> url() const = 0;

    /// The parts from left to right: the root first, the whole location last; none without a
    /// location. Titles are decoded, in one line, with control characters spelled out.
    virtual std::vector<Item> pathItems() const = 0;
};

/// The parts of the file location `url`, for controls that show them; none for any other address.
std::vector<PathControl::Item> pathItemsOf(const QString& url);

} // namespace kelvo
