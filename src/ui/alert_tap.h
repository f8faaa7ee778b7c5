// AlertTap: what the front's alerts say is told to somebody else too.
#pragma once

#include "ports/alert_presenter.h"

#include <functional>
#include <utility>

namespace kelvo {

class AlertTap final : public AlertPresenter {
public:
    /// `presenter` outlives the tap. `shown`, which may be empty, is told before a person can
    /// answer.
    AlertTap(AlertPresenter& presenter, std::function<void(const Alert&)> shown)
        : fPresenter(presenter), fShown(std::move(shown)) {}

    bool hasWindow() const override { return fPresenter.hasWindow(); }
    SheetId beginSheet(const Alert& alert, std::function<void(ModalResponse)> handler) override {
        tell(alert);
        return fPresenter.beginSheet(alert, std::move(handler));
    }
    void endSheet(SheetId sheet) override { fPresenter.endSheet(sheet); }
    ModalResponse runModal(const Alert& alert) override {
        tell(alert);
        return fPresenter.runModal(alert);
    }

private:
    void tell(const Alert& alert) const {
        if (fShown)
            fShown(alert);
    }

    AlertPresenter& fPresenter;
    const std::function<void(const Alert&)> fShown;
};

} // namespace kelvo
