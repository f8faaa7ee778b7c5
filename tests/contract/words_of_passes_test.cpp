// Folders, accounts and homes with odd names in the real commands.
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "remote/connection_check.h"
#include "remote/remote_host_validation.h"
#include "settings/preference_keys.h"
#include "settings/preferences.h"
#include "sync/rsync_command.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace kelvo {
namespace {

const QStringList cOddNames{
    "Films $5",
    "Films ${HOME}",
    "a\"b",
    "a'b",
    "a''b\"\"",
    "$(touch x)",
    "`touch x`",
    "ends\\",
    "\\\\",
    "\\n",
    "-x",
    "--delete",
    "-",
    "~",
    "~root",
    "*",
    "?",
    "[x]",
    "\\*",
    "{a,b}",
    ";touch x",
    "a;b",
    "a & touch x",
    "a|b",
    "#a",
    "a #b",
    "%@1",
    "%@2",
    "a%@2b",
    "%@3",
    "x%@98",
    "%@99",
    "!a",
    "^a",
    "a=b",
    "a:b",
    "u@h:b",
    "<a>",
    "a\tb",
    "a\nb",
    "a\rb",
    "(x)",
    "%s%n",
    "a  b",
    "'",
    "\"",
    "$",
    "é 漢 🎬",
    "Films (2)\\ [x]'",
};

class WordsOfPassesTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (!QFileInfo(QStringLiteral("/usr/bin/rsync")).isExecutable())
            GTEST_SKIP() << "there is no /usr/bin/rsync";
        for (const char* folder : {"/from", "/to", "/tools", "/here"})
            ASSERT_TRUE(QDir().mkpath(fRoot + folder));
    }

    static QString rsyncTemplate() {
        return factoryValue(*preference(prefRsyncCommandString1)).toString();
    }

    void makeFilm(const QString& folder) {
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile film(folder + "/a.mov");
        ASSERT_TRUE(film.open(QFile::WriteOnly)) << folder.toStdString();
        film.write(folder.toUtf8());
    }

    /// A stand-in that writes its arguments down, a line each, and runs the command behind the host
    /// as ssh has it run by the login shell over there.
    void makeSsh() {
        QFile script(fRoot + "/tools/ssh");
        ASSERT_TRUE(script.open(QFile::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + fRoot.toUtf8() +
                     "/arguments'\n"
                     "while [ \"${1#-}\" != \"$1\" ]; do shift 2; done\nshift\n"
                     "exec /bin/sh -c \"$*\"\n");
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }

    QString run(const QString& command) {
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PATH", fRoot + "/tools:" + environment.value("PATH"));
        environment.remove("RSYNC_OLD_ARGS");
        shell.setProcessEnvironment(environment);
        shell.setWorkingDirectory(fRoot + "/here");
        shell.setProcessChannelMode(QProcess::MergedChannels);
        shell.start("/bin/sh", {"-c", command});
        EXPECT_TRUE(shell.waitForFinished(60'000));
        return QString::fromUtf8(shell.readAll());
    }

    QStringList sshArguments() const {
        QFile file(fRoot + "/arguments");
        if (!file.open(QFile::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(u'\n');
    }

    /// Everything there is but the tools and their notes.
    QMap<QString, QByteArray> files() const {
        QMap<QString, QByteArray> found;
        for (const char* folder : {"/from", "/to", "/here"}) {
            QDirIterator entries(fRoot + folder,
                                 QDir::AllEntries | QDir::Hidden | QDir::System |
                                     QDir::NoDotAndDotDot,
                                 QDirIterator::Subdirectories);
            while (entries.hasNext()) {
                QFile file(entries.next());
                found.insert(file.fileName(), file.open(QFile::ReadOnly) ? file.readAll() : "");
            }
        }
        return found;
    }

    /// The pass brings the film into that very folder and changes nothing else, or is refused.
    /// Whether it ran.
    bool expectExactOrRefused(const QString& command, const RsyncParams& params,
                              const QString& from, const QString& to) {
        const QString fault = commandFault(command, params);
        if (!fault.isEmpty())
            return false;
        makeFilm(from);
        EXPECT_TRUE(QDir().mkpath(to));
        QFile::remove(to + "/a.mov"); // rsync leaves one of the same size and second alone
        auto expected = files();
        expected.insert(QDir::cleanPath(to) + "/a.mov", from.toUtf8());
        const QString filled = filledCommand(command, params, u"").value();
        const QString output = run(filled);
        EXPECT_TRUE(files() == expected) << filled.toStdString() << '\n' << output.toStdString();
        return true;
    }

    QTemporaryDir fFolder;
    const QString fRoot = fFolder.path();
};

TEST_F(WordsOfPassesTest, PlainPass_FillsExactlyThatFolderOrRefuses) {
    QStringList refused;
    for (const QString& name : cOddNames) {
        const QString to = fRoot + "/to/" + name;
        if (!expectExactOrRefused(rsyncTemplate(), {fRoot + "/from/plain", to, {}},
                                  fRoot + "/from/plain", to))
            refused.append(name);
    }
    EXPECT_EQ(refused, (QStringList{"a\nb", "a\rb"}));
}

TEST_F(WordsOfPassesTest, PlainPass_TakesExactlyThatFolderOrRefuses) {
    for (const QString& name : cOddNames) {
        if (name.contains("%@"))
            continue; // filled by the later steps
        const QString from = fRoot + "/from/" + name;
        const bool ran = expectExactOrRefused(rsyncTemplate(), {from, fRoot + "/to/plain", {}},
                                              from, fRoot + "/to/plain");
        EXPECT_EQ(ran, !name.contains(u'\n') && !name.contains(u'\r')) << name.toStdString();
    }
}

TEST_F(WordsOfPassesTest, FolderBesideTheProgram_IsThatFolderOrRefused) {
    QStringList refused;
    for (const QString& name : cOddNames) {
        if (!expectExactOrRefused(rsyncTemplate(), {fRoot + "/from/plain", name, {}},
                                  fRoot + "/from/plain", fRoot + "/here/" + name))
            refused.append(name);
    }
    EXPECT_EQ(refused, (QStringList{"-x", "--delete", "-", "a:b", "u@h:b", "a\nb", "a\rb"}));
}

TEST_F(WordsOfPassesTest, PlainPass_FillsAnyByteStringOrRefuses) {
    std::mt19937 random(5);
    const QByteArray nasty = "  \\\\''\"\"``$$(){}[]<>|&;#*?!~^=-%@:.ab";
    int ran = 0;
    for (int i = 0; i < 40; ++i) {
        QByteArray name;
        for (unsigned length = 1 + random() % 10; length > 0; --length)
            name += random() % 30 == 0 ? static_cast<char>(1 + random() % 255)
                                       : nasty[static_cast<qsizetype>(random() % nasty.size())];
        name.replace('/', '+');
        const QString folder = fRoot + "/to/n" + QString::fromUtf8(name) + u'.';
        ran += expectExactOrRefused(rsyncTemplate(), {fRoot + "/from/plain", folder, {}},
                                    fRoot + "/from/plain", folder);
    }
    EXPECT_GT(ran, 20);
    EXPECT_LT(ran, 40);
}

TEST_F(WordsOfPassesTest, PathOnTheHost_IsReadWholeByTheShellThere) {
    makeSsh();
    makeFilm(fRoot + "/from/x"); // what [x] and ? stand for in a pattern
    for (const QString& name : cOddNames) {
        if (name.contains("%@"))
            continue;
        const QString from = fRoot + "/from/" + name;
        const RsyncParams params{"ann@Remote-Mac-(2).local:" + from, fRoot + "/to/plain",
                                 QStringLiteral("/k")};
        for (const QString& command : {rsyncTemplate(), cMovieCommandTemplate.toString()}) {
            const bool ran = expectExactOrRefused(command, params, from, fRoot + "/to/plain");
            EXPECT_EQ(ran, !name.contains(u'\n') && !name.contains(u'\r')) << name.toStdString();
        }
    }
    EXPECT_TRUE(sshArguments().contains("Remote-Mac-(2).local"));
}

TEST_F(WordsOfPassesTest, PathFromTheLoginFolderOn_IsReadWholeByTheShellThere) {
    makeSsh();
    makeFilm(fRoot + "/here/x");
    for (const QString& name : cOddNames) {
        if (name.contains("%@") || name.startsWith(u'~'))
            continue; // filled by the later steps; a home folder over there
        const QString from = fRoot + "/here/" + name;
        const bool ran = expectExactOrRefused(
            rsyncTemplate(), {"ann@Remote-Mac.local:" + name, fRoot + "/to/plain", fRoot + "/k"},
            from, fRoot + "/to/plain");
        EXPECT_EQ(ran, !name.contains(u'\n') && !name.contains(u'\r')) << name.toStdString();
    }
}

TEST_F(WordsOfPassesTest, OddHomesAndHosts_ReachSshAsOneWord) {
    makeSsh();
    MemoryDefaults defaults;
    RecordingConsole console;
    const QString host = QStringLiteral("Ann's-Mac-[2] (x);&.local");
    defaults.setObject(prefRemoteUsername, "a nn$(touch x)");
    defaults.setObject(prefRemoteBonjourName, host);
    const QString account = "a nn$(touch x)@" + host;
    for (const QString& name : cOddNames) {
        if (name.contains(u'\n'))
            continue;
        const QString home = fRoot + "/homes/" + name;
        const QString key = home + "/.ssh/id_kelvoRsync";

        run(filledCommand(cMovieCommandTemplate.toString(),
                          {QStringLiteral("u@h:x"), fRoot + "/to", key}, u"")
                .value());
        EXPECT_EQ(sshArguments().mid(0, 5), (QStringList{"-i", key, "-l", "u", "h"}));

        run(whoamiCommand(3, key, account).replace("/usr/bin/ssh", "ssh"));
        EXPECT_EQ(sshArguments(),
                  (QStringList{"-o", "ConnectTimeout=3", "-i", key, account, "whoami", ""}));

        const auto check =
            fillInSshParams(QStringLiteral("ssh -i %@4 -o BatchMode=yes -o ConnectTimeout=5 "
                                           "%@1@%@2 echo %@sshgoodresponsestring 2>&1"),
                            defaults, home, console);
        ASSERT_TRUE(check) << name.toStdString();
        EXPECT_EQ(run(*check), QStringLiteral("remoteisgood\n"));
        EXPECT_EQ(sshArguments(),
                  (QStringList{"-i", key, "-o", "BatchMode=yes", "-o", "ConnectTimeout=5", account,
                               "echo", "remoteisgood", ""}));
    }
    EXPECT_FALSE(QFileInfo::exists(fRoot + "/here/x"));
}

} // namespace
} // namespace kelvo
