// RecordingNotices: a desktop that keeps every notice.
#pragma once

#include "ports/desktop_notices.h"

#include <QStringList>

#include <utility>
#include <vector>

namespace kelvo {

class RecordingNotices final : public DesktopNotices {
public:
    void showNotice(const Notice& notice) override {
        shown << notice.title + u" | " + notice.text;
        notices.push_back(notice);
    }

    /// A person chooses "Show" on the newest notice; false when it offers no such choice.
    bool chooseShow() {
        const auto show = std::exchange(notices.back().show, nullptr);
        if (show)
            show();
        return show != nullptr;
    }

    QStringList shown; ///< "<title> | <text>"
    std::vector<Notice> notices;
};

} // namespace kelvo
