// PlistDefaultsFixture: a settings file, stores on it, and what they said.
#pragma once

#include "adapters/settings/plist_defaults.h"
#include "contract/settings_folder.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "settings/preferences.h"
#include "support/stored_value.h"
#include "support/wait_until.h"

#include <gtest/gtest.h>

#include <memory>

namespace kelvo {

class PlistDefaultsFixture : public ::testing::Test {
protected:
    std::unique_ptr<PlistDefaults> open() {
        return std::make_unique<PlistDefaults>(fFolder.path(), DamagedFile::IsSetAside, isState,
                                               fMain, fConsole);
    }

    /// Waits until the file holds `value` under `key`.
    bool fileGets(const QString& key, const QVariant& value) const {
        return waitUntil([&] {
            const auto values = fFolder.values();
            return values && sameStoredValue(values->value(key), value);
        });
    }

    /// Runs main-queue work until `condition`.
    bool mainUntil(const std::function<bool()>& condition) {
        return waitUntil([&] {
            fMain.runDue();
            return condition();
        });
    }

    SettingsFolder fFolder;
    VirtualMainQueue fMain;
    RecordingConsole fConsole;
};

} // namespace kelvo
