// EventList: what several fakes were asked for, in the one order in which it came.
#pragma once

#include <QStringList>

namespace kelvo {

/// A test gives the same list to all the fakes whose order matters to it; the others keep none.
struct EventList {
    QStringList* shared = nullptr;

    void note(const QString& event) const {
        if (shared)
            shared->append(event);
    }
};

} // namespace kelvo
