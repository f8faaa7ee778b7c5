// A front that tests look at and answer for: button, status field, alerts.
#pragma once

#include "ports/alert_presenter.h"
#include "ports/control.h"
#include "ports/status_field.h"

#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace kelvo {

class FakeButton final : public Button {
public:
    int state() const override { return current; }
    void performClick() override {
        current = 1 - current;
        ++clicks;
        if (action)
            action(this);
    }
    void setTitle(const QString& newTitle) override { title = newTitle; }

    std::function<void(Control*)> action;
    QString title;
    int current = 0;
    int clicks = 0;
};

class FakeStatusField final : public StatusField {
public:
    void setAttributedStringValue(const AttributedString& value) override {
        shown.push_back(value);
    }
    void clear() override {
        shown.push_back({});
        ++clears;
    }

    std::vector<AttributedString> shown; ///< everything so far; an empty text for a clear
    int clears = 0;
};

class FakeAlertPresenter final : public AlertPresenter {
public:
    bool hasWindow() const override { return window; }
    SheetId beginSheet(const Alert& alert, std::function<void(ModalResponse)> handler) override {
        alerts.push_back(alert);
        open.emplace(++last, std::move(handler));
        return last;
    }
    void endSheet(SheetId sheet) override { answer(sheet, cModalResponseStop); }
    ModalResponse runModal(const Alert& alert) override {
        alerts.push_back(alert);
        return modalAnswer;
    }

    /// Answers an open sheet; false when it is gone.
    bool answer(SheetId sheet, ModalResponse response) {
        auto answered = open.extract(sheet);
        if (!answered)
            return false;
        answered.mapped()(response);
        return true;
    }

    std::vector<Alert> alerts; ///< everything shown so far
    std::map<SheetId, std::function<void(ModalResponse)>> open;
    ModalResponse modalAnswer = cAlertFirstButtonReturn;
    bool window = true;
    SheetId last = 0;
};

} // namespace kelvo
