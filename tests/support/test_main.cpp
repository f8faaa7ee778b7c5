// The main of every test program: private home and settings folders, then the tests.
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const QTemporaryDir home;
    if (!home.isValid())
        return 1;
    const auto privateFolder = [&home](const char* variable, const char* name) {
        const QString path = home.filePath(QString::fromLatin1(name));
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(variable, path.toLocal8Bit());
    };
    privateFolder("HOME", "home");
    privateFolder("XDG_CONFIG_HOME", "config");
    privateFolder("XDG_STATE_HOME", "state");
    privateFolder("XDG_CACHE_HOME", "cache");
    privateFolder("XDG_DATA_HOME", "data");
    privateFolder("XDG_RUNTIME_DIR", "run");
    privateFolder("TMPDIR", "tmp");

    ::testing::InitGoogleTest(&argc, argv);
    ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
