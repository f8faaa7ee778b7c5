// SheetOpener: puts the program's own sheets on the main window.
#pragma once

#include <QStringView>

namespace kelvo {

/// The list of services, as SheetOpener knows it.
inline constexpr QStringView cBonjourSheet = u"BonjourVCstoryboardID";

class SheetOpener {
public:
    virtual ~SheetOpener() = default;

    /// Makes the sheet `identifier` afresh and shows it; returns at once, the sheet closes itself.
    /// False when there is no such sheet. Main thread.
    virtual bool presentSheet(QStringView identifier) = 0;
};

} // namespace kelvo
