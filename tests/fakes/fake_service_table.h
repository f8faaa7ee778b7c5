// The list of services as tests see it: rows, selection, sheet.
#pragma once

#include "ports/array_controller.h"
#include "ports/sheet.h"
#include "ports/sheet_opener.h"
#include "ports/table_view.h"

#include <QStringList>

namespace kelvo {

class FakeArrayController final : public ArrayController {
public:
    void setContent(const std::optional<DNSSD_Services>& content) override {
        fContent = content;
        ++contentSet;
    }
    std::optional<DNSSD_Services> content() const override { return fContent; }
    std::optional<DNSSD_Services> arrangedObjects() const override {
        return readable ? fContent : std::nullopt;
    }
    qsizetype selectionIndex() const override { return selected; }

    qsizetype selected = -1;
    bool readable = true;
    int contentSet = 0;

private:
    std::optional<DNSSD_Services> fContent;
};

/// Selecting a row tells the delegate, as a person's click does.
class FakeTableView final : public TableView {
public:
    explicit FakeTableView(FakeArrayController& rows) : fRows(rows) {}

    void setDelegate(std::weak_ptr<TableViewDelegate> newDelegate) override {
        delegate = std::move(newDelegate);
    }
    void setDoubleAction(std::function<void()> action) override {
        doubleAction = std::move(action);
    }
    QList<qsizetype> selectedRowIndexes() const override {
        return fRows.selected < 0 ? QList<qsizetype>() : QList<qsizetype>{fRows.selected};
    }
    qsizetype selectedRow() const override { return fRows.selected; }

    void select(qsizetype row) {
        fRows.selected = row;
        if (const auto told = delegate.lock())
            told->tableViewSelectionDidChange({QStringLiteral("SelectionDidChange"), this});
    }

    std::weak_ptr<TableViewDelegate> delegate;
    std::function<void()> doubleAction;

private:
    FakeArrayController& fRows;
};

class FakeSheet final : public Sheet {
public:
    void dismiss() override { ++dismissed; }
    void beep() override { ++beeps; }

    int dismissed = 0;
    int beeps = 0;
};

class FakeSheetOpener final : public SheetOpener {
public:
    bool presentSheet(QStringView identifier) override {
        presented.append(identifier.toString());
        return available;
    }

    QStringList presented;
    bool available = true;
};

} // namespace kelvo
