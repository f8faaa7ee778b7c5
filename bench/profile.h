// Profile: a home of its own for a program that is measured.
#pragma once

#include "support/pass_record.h"

#include <QProcess>
#include <QTemporaryDir>

#include <vector>

namespace kelvo::bench {

class Profile {
public:
    Profile();

    /// What lies in it under `name`; the folder itself for an empty one.
    QString path(const char* name = "") const;

    /// Stores `entries`, of a property list of settings; "%1" in it is the folder.
    void set(const QString& entries) const;

    /// Of a program that keeps all it has in here, and reaches no session bus.
    QProcessEnvironment environment() const;

    /// What is in the record, commands included; empty when it cannot be read.
    std::vector<PassRecord> recordedPasses() const;

private:
    const QTemporaryDir fFolder;
};

/// The entries for plain passes from "from" to "to" in the folder, every `rest` seconds.
QString plainPasses(double rest);

/// The program that was built beside this one.
QString builtProgram(const QString& name);

} // namespace kelvo::bench
