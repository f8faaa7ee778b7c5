#include "adapters/system/local_checklist_probe.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(ChecklistProbeTest, Programs_AreExecutableFiles) {
    const LocalChecklistProbe probe;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("tööl"));
    EXPECT_FALSE(probe.isProgram(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.close();
    EXPECT_FALSE(probe.isProgram(path));
    file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_TRUE(probe.isProgram(path));
    EXPECT_FALSE(probe.isProgram(folder.path()));
    EXPECT_FALSE(probe.isProgram(QString()));
}

TEST(ChecklistProbeTest, Folders_AreFoldersThatCanBeWritten) {
    const LocalChecklistProbe probe;
    const QTemporaryDir folder;
    EXPECT_TRUE(probe.isWritableFolder(folder.path()));
    EXPECT_FALSE(probe.isWritableFolder(folder.filePath(QStringLiteral("none"))));
    EXPECT_FALSE(probe.isWritableFolder(QStringLiteral("/proc/self"))) << "nobody writes there";
    EXPECT_FALSE(probe.isWritableFolder(QString(folder.path() + QChar(u'\0'))));
}

} // namespace
} // namespace kelvo
