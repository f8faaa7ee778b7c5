// RecordingNotices: a desktop that keeps every notice.
#pragma once

#include "ports/desktop_notices.h"

#include <QStringList>

#include <vector>

namespace kelvo {

class RecordingNotices final : public DesktopNotices {
public:
    void showNotice(const Notice& notice) override {
        shown << notice.title + u" | " + notice.text;
        notices.push_back(notice);
    }

    QStringList shown; ///< "<title> | <text>"
    std::vector<Notice> notices;
};

} // namespace kelvo
