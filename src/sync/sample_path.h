// SamplePath: keeps the remote source in rsync form among the settings.
#pragma once

namespace kelvo {

class DispatchQueue;
class UserDefaults;

class SamplePath {
public:
    SamplePath(UserDefaults& defaults, DispatchQueue& mainQueue)
        : fDefaults(defaults), fMainQueue(mainQueue) {}

    /// Stores user + "@" + host + ":" + path under prefSampleRemoteFullPath, later on the main
    /// queue; with one of the three missing the old value stays. Any thread; returns at once.
    void updateSampleString();

private:
    UserDefaults& fDefaults;
    DispatchQueue& fMainQueue;
};

} // namespace kelvo
