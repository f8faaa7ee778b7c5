#include "adapters/process/user_ssh_configuration.h"
#include "fakes/fake_ssh_configuration.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using Knows = SshConfiguration::Knows;

/// The machine's file is missing, the user's too, until a test says otherwise.
class RealConfiguration {
public:
    SshConfiguration& get() { return fConfiguration; }
    QString at(const char* name) const { return fFolder.filePath(QString::fromLatin1(name)); }

private:
    QTemporaryDir fFolder;
    UserSshConfiguration fConfiguration{at("it's here/../ssh.conf"), at("machines"), at("home")};
};

class FakeConfiguration {
public:
    SshConfiguration& get() { return fConfiguration; }

private:
    FakeSshConfiguration fConfiguration;
};

template <typename Configuration>
class SshConfigurationContract : public ::testing::Test {
protected:
    Configuration configuration;
};
using Configurations = ::testing::Types<FakeConfiguration, RealConfiguration>;
TYPED_TEST_SUITE(SshConfigurationContract, Configurations, );

TYPED_TEST(SshConfigurationContract, Line_IsPutThereAndTakenAway) {
    SshConfiguration& ssh = this->configuration.get();
    EXPECT_TRUE(ssh.file().endsWith(QStringLiteral("/.ssh/config")));
    EXPECT_EQ(ssh.knows(), Knows::NotYet);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(ssh.setLine(true), QString());
    EXPECT_EQ(ssh.knows(), Knows::ByTheLine);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(ssh.setLine(false), QString());
    EXPECT_EQ(ssh.knows(), Knows::NotYet);
}

class UserSshConfigurationTest : public ::testing::Test {
protected:
    void write(const char* name, const QByteArray& content) {
        ASSERT_TRUE(QDir().mkpath(real.at("home/.ssh")));
        QFile file(real.at(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
    }
    QByteArray read(const char* name) {
        QFile file(real.at(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    QByteArray line() { return ssh.line().toUtf8(); }

    static constexpr const char* cFile = "home/.ssh/config";
    RealConfiguration real;
    SshConfiguration& ssh = real.get();
};

TEST_F(UserSshConfigurationTest, MissingFile_IsMadeForTheUserAlone) {
    EXPECT_EQ(ssh.setLine(true), QString());
    EXPECT_EQ(read(cFile), line() + '\n');
    const auto others = QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther | QFile::WriteGroup;
    EXPECT_FALSE(QFile::permissions(real.at(cFile)) & others);
    EXPECT_FALSE(QFile::permissions(real.at("home/.ssh")) & others);
}

TEST_F(UserSshConfigurationTest, EverythingElse_StaysByteForByte) {
    const QByteArray own = "# mine\r\nHost *\n\tUser \xff\n\n  " + line() + " old\nHost b";
    write(cFile, own);
    QFile::setPermissions(real.at(cFile), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    const auto mode = QFile::permissions(real.at(cFile));
    EXPECT_EQ(ssh.knows(), Knows::NotYet) << "another line that begins like ours";
    EXPECT_EQ(ssh.setLine(true), QString());
    EXPECT_EQ(read(cFile), line() + '\n' + own);
    EXPECT_EQ(QFile::permissions(real.at(cFile)), mode);
    EXPECT_EQ(ssh.setLine(false), QString());
    EXPECT_EQ(read(cFile), own);
}

TEST_F(UserSshConfigurationTest, LineAtTheEndWithoutALineEnd_IsTakenAway) {
    write(cFile, "Host a\n" + line());
    EXPECT_EQ(ssh.knows(), Knows::ByTheLine);
    EXPECT_EQ(ssh.setLine(false), QString());
    EXPECT_EQ(read(cFile), "Host a\n");
}

TEST_F(UserSshConfigurationTest, LinkToTheFile_StaysALink) {
    write("own-config", "Host a\n");
    ASSERT_TRUE(QFile::link(real.at("own-config"), real.at(cFile)));
    EXPECT_EQ(ssh.setLine(true), QString());
    EXPECT_EQ(read("own-config"), line() + "\nHost a\n");
    EXPECT_EQ(QFile::symLinkTarget(real.at(cFile)), real.at("own-config"));
}

TEST_F(UserSshConfigurationTest, MachineThatTells_NeedsNoLine) {
    write("machines", "");
    EXPECT_EQ(ssh.knows(), Knows::ByTheMachine);
}

TEST_F(UserSshConfigurationTest, FileThatCannotBeOne_IsLeftAloneAndSaid) {
    ASSERT_TRUE(QDir().mkpath(real.at(cFile)));
    EXPECT_EQ(ssh.knows(), Knows::NotYet);
    EXPECT_NE(ssh.setLine(true), QString());
    EXPECT_TRUE(QDir(real.at(cFile)).exists());
}

/// ssh itself reads the line, and minds it for commands with the variable alone.
TEST_F(UserSshConfigurationTest, Ssh_MindsTheLineForOurCommandsAlone) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(KELVO_RESOURCES "/ssh.conf"), real.at("ssh.conf")));
    ASSERT_EQ(ssh.setLine(true), QString());
    const auto asked = [&](const QStringList& variables) {
        QProcess process;
        process.start(QStringLiteral("env"),
                      variables + QStringList{QStringLiteral("ssh"), QStringLiteral("-F"),
                                              real.at(cFile), QStringLiteral("-G"),
                                              QStringLiteral("mediauser@mac.local")});
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput());
    };
    const QStringList ours{QStringLiteral("KELVO_MIRROR_CONTROL=/run/it")};
    EXPECT_TRUE(asked(ours).contains(QStringLiteral("\ncontrolpath /run/it/")))
        << asked(ours).toStdString();
    EXPECT_TRUE(asked(ours).contains(QStringLiteral("\ncontrolmaster false\n")));
    const QString others = asked({QStringLiteral("-u"), QStringLiteral("KELVO_MIRROR_CONTROL")});
    EXPECT_TRUE(others.contains(QStringLiteral("\nuser mediauser\n"))) << others.toStdString();
    EXPECT_FALSE(others.contains(QStringLiteral("controlpath"))) << others.toStdString();
}

} // namespace
} // namespace kelvo
