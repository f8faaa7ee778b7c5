// Several profiles of one user at work side by side: the built program, real rsync.
#include "support/descendants.h"
#include "support/profile.h"
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/wait_until.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/stat.h>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

const QString cProgram = QStringLiteral(KELVO_PROGRAM);

/// Names whose first pass begins within a second and a half.
QStringList earlyNames() {
    QStringList names;
    for (int number = 0; names.size() < 2; ++number) {
        const Profile profile{QStringLiteral("mac-%1").arg(number)};
        if (profile.firstPassDelay() < 1.5)
            names.append(profile.name);
    }
    return names;
}

class ProfilesSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    QString settingsOf(const QString& name) const {
        return path(u"config/kelvo-mirror/profiles/" + name + u"/preferences.plist");
    }
    QString recordOf(const QString& name) const {
        return path(u"state/kelvo-mirror/profiles/" + name + u"/passes.sqlite");
    }
    QString logOf(const QString& name) const {
        return path(u"state/Kelvo/profiles/" + name + u"/kelvo-mirror.log");
    }
    QString destinationOf(const QString& name) const { return path(u"Incoming-" + name); }

    void writeProfile(const QString& name, const QVariantMap& more = {}) const {
        QVariantMap settings = plainProfile();
        settings.insert(QStringLiteral("prefPath2"), destinationOf(name));
        settings.insert(more);
        write(settingsOf(name), plistText(settings));
        write(QString(destinationOf(name) + u"/kept.txt"), "mine");
    }
    std::unique_ptr<RunningProgram> start(const QString& name) const {
        return std::make_unique<RunningProgram>(
            cProgram, QStringList{QStringLiteral("--profile"), name, QStringLiteral("--headless")},
            environment());
    }
    Ended run(const QStringList& arguments) const { return runToEnd(cProgram, arguments); }

    /// What --profiles says of `name`; empty for one that it does not name.
    QJsonObject told(const QString& name) const {
        for (const QByteArray& line :
             run({QStringLiteral("--profiles"), QStringLiteral("--json")}).output.split('\n')) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            if (object.value(u"name").toString() == name)
                return object;
        }
        return {};
    }
};

TEST_F(ProfilesSystemTest, TwoSideBySide_EachWithFilesOfItsOwn) {
    const QStringList names = earlyNames();
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    for (const QString& name : names)
        writeProfile(name);
    std::vector<std::unique_ptr<RunningProgram>> programs;
    for (const QString& name : names)
        programs.push_back(start(name));
    for (const QString& name : names) {
        EXPECT_TRUE(
            waitUntil([&] { return QFile::exists(QString(destinationOf(name) + u"/a.mov")); }, 60s))
            << programs.front()->transcript().toStdString();
        EXPECT_TRUE(waitUntil([&] { return told(name).value(u"lastSuccess").isString(); }, 60s));
        EXPECT_TRUE(told(name).value(u"running").toBool());
        EXPECT_TRUE(QFile::exists(recordOf(name)));
        EXPECT_TRUE(contents(logOf(name)).contains("The first pass begins in"));
        EXPECT_EQ(QFileInfo(logOf(name)).dir().dirName(), name);
    }
    EXPECT_FALSE(QFile::exists(settingsFile())) << "the program without a profile is not touched";
    EXPECT_FALSE(QFile::exists(logFile()));
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("state/kelvo-mirror/passes.sqlite"))));

    const Ended again = run({QStringLiteral("--profile"), names[0], QStringLiteral("--headless")});
    EXPECT_EQ(again.code, 0) << "the running one is told";
    EXPECT_TRUE(again.errors.contains("is running already")) << again.errors.constData();

    const auto ask = [this](const QString& name, const QString& what) {
        return run({QStringLiteral("--profile"), name, what, QStringLiteral("--json")});
    };
    for (std::size_t each = 0; each < programs.size(); ++each) {
        const Ended status = ask(names[static_cast<qsizetype>(each)], QStringLiteral("--status"));
        EXPECT_EQ(QJsonDocument::fromJson(status.output).object().value(u"process").toInteger(),
                  programs[each]->processId())
            << status.output.constData();
    }
    EXPECT_EQ(run({QStringLiteral("--status")}).code, 4) << "without a profile none runs";
    EXPECT_EQ(run({QStringLiteral("--profile"), names[0], QStringLiteral("--stop")}).code, 0);
    const auto isOff = [&](const QString& name) {
        return QJsonDocument::fromJson(ask(name, QStringLiteral("--status")).output)
                   .object()
                   .value(u"state") == QStringLiteral("off");
    };
    EXPECT_TRUE(waitUntil([&] { return isOff(names[0]); }));
    EXPECT_FALSE(isOff(names[1]));

    EXPECT_EQ(programs[0]->stop(), 0);
    EXPECT_EQ(ask(names[0], QStringLiteral("--status")).code, 4);
    EXPECT_FALSE(told(names[0]).value(u"running").toBool());
    EXPECT_TRUE(told(names[1]).value(u"running").toBool());
    EXPECT_EQ(programs[1]->stop(), 0);
}

TEST_F(ProfilesSystemTest, TwoIntoOneFolder_SecondIsToldWhyAndPullsNothing) {
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    const QString goOn = path(QStringLiteral("go-on"));
    ASSERT_EQ(::mkfifo(goOn.toLocal8Bit().constData(), 0600), 0);
    writeProfile(QStringLiteral("east"), {{QStringLiteral("prefRsyncCommandString1"),
                                           QStringLiteral("echo begun > '%1'; read line < '%2'")
                                               .arg(path(QStringLiteral("mark")), goOn)}});
    writeProfile(QStringLiteral("west"),
                 {{QStringLiteral("prefPath2"), destinationOf(QStringLiteral("east"))}});
    QProcess first;
    first.setProcessEnvironment(environment());
    first.start(cProgram, {QStringLiteral("--profile=east"), QStringLiteral("--once")});
    ASSERT_TRUE(waitUntil([&] { return contents(path(QStringLiteral("mark"))) == "begun\n"; }));
    const Ended taken = run({QStringLiteral("--once"), QStringLiteral("--profile=west")});
    EXPECT_EQ(taken.code, 14);
    EXPECT_TRUE(taken.output.contains("Another program is pulling into this folder."))
        << taken.output.constData();
    EXPECT_FALSE(QFile::exists(QString(destinationOf(QStringLiteral("east")) + u"/a.mov")));
    EXPECT_EQ(told(QStringLiteral("west")).value(u"trouble"), QStringLiteral("destination-taken"));
    write(goOn, "well\n");
    ASSERT_TRUE(first.waitForFinished());
    EXPECT_EQ(first.exitCode(), 0);
}

TEST_F(ProfilesSystemTest, ProfileThatEndedBySurprise_ComesBackAsItself) {
    adoptOrphans();
    const QString name = earlyNames().first();
    writeProfile(name, {{QStringLiteral("prefAutoStartScanOnLaunch"), false}});
    const auto program = start(name);
    ASSERT_TRUE(program->waitForLine(QStringLiteral("great got self.fKelvoSSID..."), 60));
    ASSERT_EQ(::kill(static_cast<pid_t>(program->processId()), SIGKILL), 0);
    EXPECT_TRUE(waitUntil(
        [&] {
            return contents(logOf(name))
                .contains("automatically relaunched due to unexpected termination");
        },
        60s));
    EXPECT_TRUE(waitUntil([&] { return told(name).value(u"running").toBool(); }, 60s));
    EXPECT_FALSE(QFile::exists(logFile()));
    endAllDescendants("watchdog");
}

TEST_F(ProfilesSystemTest, ProfileThatIsNotThere_IsNotMadeByReading) {
    for (const QStringList& words :
         {QStringList{QStringLiteral("--once")}, QStringList{QStringLiteral("--passes")},
          QStringList{QStringLiteral("--status")}, QStringList{QStringLiteral("--start")},
          QStringList{QStringLiteral("--get"), QStringLiteral("prefPath1")},
          QStringList{QStringLiteral("--export-profile"), QStringLiteral("-")}}) {
        const Ended ended =
            run(QStringList{QStringLiteral("--profile"), QStringLiteral("esat")} + words);
        EXPECT_EQ(ended.code, 2) << words.join(u' ').toStdString();
        EXPECT_TRUE(ended.errors.contains("there is no profile esat")) << ended.errors.constData();
    }
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("config/kelvo-mirror/profiles"))));
    EXPECT_EQ(run({QStringLiteral("--profiles")}).output, "");
}

TEST_F(ProfilesSystemTest, ExportedProfile_IsImportedOnceItIsAccepted) {
    const auto set = [this](const char* key, const QString& value) {
        return run({QStringLiteral("--profile"), QStringLiteral("east"), QStringLiteral("--set"),
                    QString::fromLatin1(key), value})
            .code;
    };
    const QString command = QStringLiteral("/usr/bin/rsync 2>&1 %@98 -r \"%@1\" \"%@2\"");
    ASSERT_EQ(set("prefRemoteBonjourName", QStringLiteral("Attic.local")), 0);
    ASSERT_EQ(set("prefRsyncCommandString1", command), 0);
    ASSERT_EQ(set("prefPath2", path(QStringLiteral("Incoming"))), 0);
    const QString file = path(QStringLiteral("east.json"));
    const QStringList east{QStringLiteral("--profile"), QStringLiteral("east")};
    const QStringList west{QStringLiteral("--profile"), QStringLiteral("west")};
    const Ended exported = run(east + QStringList{QStringLiteral("--export-profile"), file});
    EXPECT_EQ(exported.code, 0) << exported.errors.constData();
    EXPECT_TRUE(exported.errors.contains("read it before you give the file away"));
    EXPECT_FALSE(contents(file).contains("Incoming"));
    EXPECT_EQ(run(east + QStringList{QStringLiteral("--export-profile"), file}).code, 1)
        << "nothing is written over";

    const QStringList import{QStringLiteral("--import-profile"), file};
    const Ended shown = run(west + import);
    EXPECT_EQ(shown.code, 1) << "there is no terminal to ask on";
    EXPECT_TRUE(shown.output.contains(command.toUtf8())) << shown.output.constData();
    EXPECT_FALSE(QFile::exists(settingsOf(QStringLiteral("west"))));
    EXPECT_EQ(told(QStringLiteral("west")), QJsonObject());

    const Ended accepted = run(west + import + QStringList{QStringLiteral("--accept")});
    EXPECT_EQ(accepted.code, 0) << accepted.errors.constData();
    EXPECT_EQ(told(QStringLiteral("west")).value(u"mac"), QStringLiteral("Attic.local"));
    const auto get = [&](const char* key) {
        return run(west + QStringList{QStringLiteral("--get"), QString::fromLatin1(key)});
    };
    EXPECT_EQ(get("prefRsyncCommandString1").output, QByteArray(command.toUtf8() + '\n'));
    EXPECT_EQ(get("prefPath2").code, 1) << "a folder of the other machine";
    EXPECT_TRUE(run(west + import + QStringList{QStringLiteral("--accept")})
                    .output.contains("is there already"));
}

} // namespace
} // namespace kelvo
