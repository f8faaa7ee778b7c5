// RefusedNames: says once of each name that it is not listed.
#pragma once

#include <QSet>
#include <QString>

namespace kelvo {

class Console;

/// One thread only.
class RefusedNames {
public:
    explicit RefusedNames(Console& console) : fConsole(console) {}

    /// Leaves a line with `name` escaped, the first time; after very many names it says that the
    /// rest is not told.
    void tell(const QString& name);

private:
    Console& fConsole;
    QSet<QString> fTold;
};

} // namespace kelvo
