// RecordingNotices: a desktop that keeps every notice.
#pragma once

#include "ports/desktop_notices.h"

#include <QStringList>

namespace kelvo {

class RecordingNotices final : public DesktopNotices {
public:
    void showNotice(const QString& title, const QString& text) override {
        shown << title + u" | " + text;
    }

    QStringList shown; ///< "<title> | <text>"
};

} // namespace kelvo
