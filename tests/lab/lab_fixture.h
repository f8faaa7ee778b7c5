// LabTest: a test that has two hosts, a cable and a first-day remote Mac at its disposal.
#pragma once

#include "lab/command_result.h"
#include "support/running_program.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <memory>

namespace kelvo {

/// A path below a folder, and the SHA-256 of the file there, in hexadecimal.
using Checksums = QMap<QString, QByteArray>;

/// The near user's home and incoming folder, the remote host's names.
inline const QString cNearHome = QStringLiteral("/Users/near");
inline const QString cIncoming = QStringLiteral("/Users/near/Incoming");
inline const QString cRemoteHost = QStringLiteral("Remote-Mac.local");
inline const QString cRemoteAddress = QStringLiteral("10.77.0.2");
inline const QString cRemoteUser = QStringLiteral("mediauser");
inline const QString cRemoteMovies = QStringLiteral("/Users/mediauser/Movies");

class LabTest : public ::testing::Test {
protected:
    /// Skips with the reason where there is no lab; otherwise makes it a first day again.
    void SetUp() override;

    /// The lab's own command, for example {"link", "down"}.
    static CommandResult lab(const QStringList& arguments, double seconds = 60);
    /// A shell text on the near host (as its user) or on the remote host (as root).
    static CommandResult near(const QString& shellText, double seconds = 60);
    static CommandResult remote(const QString& shellText, double seconds = 60);

    static void writeNear(const QString& path, const QByteArray& content);
    static void writeRemote(const QString& path, const QByteArray& content);
    /// All plain files below the folder; a folder that is missing has none.
    static Checksums nearChecksums(const QString& folder);
    static Checksums remoteChecksums(const QString& folder);

    /// What the factory settings of a remote pass bring over, of all that is there: files with a
    /// movie's ending, and any name in which ".mov", ".mp4" or the like is followed by more.
    static Checksums moviesOf(const Checksums& all);

    /// A profile that pulls the remote user's Movies into the incoming folder, 2 s between passes.
    static QVariantMap remoteProfile();
    /// Starts the built program on the near host with `--headless`, these arguments and settings.
    static std::unique_ptr<RunningProgram> startProgram(const QVariantMap& profile,
                                                        const QStringList& arguments = {}) {
        return startProgramBy({}, profile, arguments);
    }
    /// The same by way of another command, for example {"env", "NAME=value"}.
    static std::unique_ptr<RunningProgram> startProgramBy(const QStringList& command,
                                                          const QVariantMap& profile,
                                                          const QStringList& arguments = {});
};

} // namespace kelvo
