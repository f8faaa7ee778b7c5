// The errors with which a healthy settings file may fail to be opened or read.
#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <ostream>
#include <string>
#include <vector>

namespace kelvo {

struct FileFailure {
    const char* call;
    int error;
    const char* name;

    std::string text() const { return std::string(call) + name; }
};

/// For the test's name.
inline void PrintTo(const FileFailure& failure, std::ostream* stream) {
    *stream << failure.text();
}

inline std::vector<FileFailure> fileFailures() {
    std::vector<FileFailure> failures;
    for (const char* call : {"open", "read"}) {
        failures.insert(failures.end(), {{call, EMFILE, "EMFILE"},
                                         {call, ENFILE, "ENFILE"},
                                         {call, ENOMEM, "ENOMEM"},
                                         {call, EIO, "EIO"},
                                         {call, EACCES, "EACCES"},
                                         {call, ETIMEDOUT, "ETIMEDOUT"},
                                         {call, ESTALE, "ESTALE"}});
    }
    return failures;
}

} // namespace kelvo
