// The list of services where there is no window: kept, and shown to nobody.
#pragma once

#include "ports/array_controller.h"
#include "ports/console.h"
#include "ports/sheet_opener.h"

namespace kelvo {

/// Nothing is ever selected.
class HeadlessArrayController final : public ArrayController {
public:
    void setContent(const std::optional<DNSSD_Services>& content) override { fContent = content; }
    std::optional<DNSSD_Services> content() const override { return fContent; }
    std::optional<DNSSD_Services> arrangedObjects() const override { return fContent; }
    qsizetype selectionIndex() const override { return -1; }

private:
    std::optional<DNSSD_Services> fContent;
};

/// Says that there is no window instead of opening the sheet.
class HeadlessSheetOpener final : public SheetOpener {
public:
    /// `console` outlives the opener.
    explicit HeadlessSheetOpener(Console& console) : fConsole(console) {}

    bool presentSheet(QStringView identifier) override {
        fConsole.print(QString(u"There is no window to show the sheet " + identifier + u" on."));
        return identifier == cBonjourSheet;
    }

private:
    Console& fConsole;
};

} // namespace kelvo
