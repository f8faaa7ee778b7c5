// The contract of FileManager on files in memory and on this machine's.
#include "adapters/system/local_file_manager.h"
#include "fakes/fake_file_manager.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace kelvo {
namespace {

class MemoryPlace {
public:
    FileManager& files() { return fFiles; }
    QString at(const char* name) const { return u"/place/" + QString::fromUtf8(name); }

    void putFile(const char* name, const QByteArray& content) {
        fFiles.existing.insert(at(name));
        fFiles.written[at(name)] = content;
        fFiles.found.push_back(
            {at(name).toUtf8(), content.size(), QDateTime::currentDateTimeUtc()});
    }
    void putFolder(const char* name) { fFiles.folders.insert(at(name)); }
    void putLink(const char* target, const char* name) { fFiles.links[at(name)] = at(target); }
    bool isLink(const char* name) const { return fFiles.links.contains(at(name)); }
    QByteArray content(const char* name) const {
        return fFiles.written.value(at(name), "(not there)");
    }
    unsigned mode(const QString& path) const {
        unsigned last = 0;
        for (const auto& [changed, mode] : fFiles.modes)
            last = changed == path ? mode : last;
        return last;
    }
    int count() const {
        return static_cast<int>(fFiles.existing.size() + fFiles.folders.size() +
                                fFiles.links.size());
    }
    QString readOnlyFolder() {
        fFiles.guarded = at("read-only");
        putFolder("read-only");
        return fFiles.guarded;
    }
    void removeTemporaryFolder() { fFiles.folders.remove(fFiles.temporary.path); }
    void letSomebodyPrepareTheTemporaryFolder() {
        fFiles.temporary = {{}, fFiles.temporary.path + u" belongs to somebody else"};
    }

private:
    FakeFileManager fFiles;
};

class DiskPlace {
public:
    DiskPlace() {
        qputenv("TMPDIR", fTemporary.path().toLocal8Bit());
        qunsetenv("XDG_RUNTIME_DIR");
    }
    ~DiskPlace() {
        qputenv("TMPDIR", fTmpdir);
        qputenv("XDG_RUNTIME_DIR", fRuntime);
    }

    FileManager& files() { return fFiles; }
    QString at(const char* name) const { return fFolder.filePath(QString::fromUtf8(name)); }

    void putFile(const char* name, const QByteArray& content) {
        QFile file(at(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
    }
    void putFolder(const char* name) { ASSERT_TRUE(QDir().mkdir(at(name))); }
    void putLink(const char* target, const char* name) {
        ASSERT_TRUE(QFile::link(at(target), at(name)));
    }
    bool isLink(const char* name) const { return QFileInfo(at(name)).isSymLink(); }
    QByteArray content(const char* name) const {
        QFile file(at(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(not there)");
    }
    unsigned mode(const QString& path) const {
        struct stat entry {};
        return ::lstat(path.toLocal8Bit().constData(), &entry) == 0 ? entry.st_mode & 07777U : 0U;
    }
    int count() const {
        return static_cast<int>(
            QDir(fFolder.path())
                .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot)
                .size());
    }
    QString readOnlyFolder() { return QStringLiteral("/proc/self"); } // not even for root
    void removeTemporaryFolder() { QDir(temporary()).removeRecursively(); }
    void letSomebodyPrepareTheTemporaryFolder() {
        removeTemporaryFolder();
        ASSERT_TRUE(QFile::link(fFolder.path(), temporary()));
    }

private:
    QString temporary() const {
        return fTemporary.filePath(QStringLiteral("kelvo-mirror-%1").arg(::getuid()));
    }

    const QByteArray fTmpdir = qgetenv("TMPDIR");
    const QByteArray fRuntime = qgetenv("XDG_RUNTIME_DIR");
    QTemporaryDir fFolder;
    QTemporaryDir fTemporary;
    LocalFileManager fFiles;
};

template <typename Place>
class FileManagerContractTest : public ::testing::Test {
protected:
    Place place;
    FileManager& files = place.files();
};

using Places = ::testing::Types<MemoryPlace, DiskPlace>;
TYPED_TEST_SUITE(FileManagerContractTest, Places);

TYPED_TEST(FileManagerContractTest, FileExists_FilesFoldersAndWhatLinksLeadTo) {
    auto& place = this->place;
    const QString file = place.at("a file é");
    EXPECT_FALSE(this->files.fileExistsAtPath(file));
    place.putLink("a file é", "link");
    EXPECT_FALSE(this->files.fileExistsAtPath(place.at("link"))) << "leads nowhere yet";
    place.putFile("a file é", "");
    EXPECT_TRUE(this->files.fileExistsAtPath(file));
    EXPECT_TRUE(this->files.fileExistsAtPath(place.at("link")));
    place.putFolder("folder");
    EXPECT_TRUE(this->files.fileExistsAtPath(place.at("folder")));
    EXPECT_FALSE(this->files.fileExistsAtPath(file + QStringLiteral("/below")));
}

TYPED_TEST(FileManagerContractTest, OddPaths_AreNothingAndCannotBeChanged) {
    this->place.putFile("x", "kept");
    for (const QString& odd : {QString(), QString(this->place.at("x") + QChar(u'\0'))}) {
        EXPECT_FALSE(this->files.fileExistsAtPath(odd));
        EXPECT_FALSE(this->files.isProgram(odd));
        EXPECT_FALSE(this->files.isWritableFolder(odd));
        EXPECT_NE(this->files.removeItem(odd), std::nullopt);
        EXPECT_NE(this->files.writeAtomically(odd, "x"), std::nullopt);
        EXPECT_NE(this->files.changeMode(odd, 0755), 0);
    }
    EXPECT_EQ(this->place.content("x"), "kept");
}

TYPED_TEST(FileManagerContractTest, Programs_AreExecutableFiles) {
    const QString path = this->place.at("tööl");
    EXPECT_FALSE(this->files.isProgram(path));
    this->place.putFile("tööl", "");
    EXPECT_FALSE(this->files.isProgram(path));
    ASSERT_EQ(this->files.changeMode(path, 0700), 0);
    EXPECT_TRUE(this->files.isProgram(path));
    this->place.putLink("tööl", "link");
    EXPECT_TRUE(this->files.isProgram(this->place.at("link")));
    this->place.putFolder("folder");
    EXPECT_FALSE(this->files.isProgram(this->place.at("folder")));
}

TYPED_TEST(FileManagerContractTest, WritableFolders_AreFoldersThatTakeFiles) {
    EXPECT_FALSE(this->files.isWritableFolder(this->place.at("folder")));
    this->place.putFolder("folder");
    EXPECT_TRUE(this->files.isWritableFolder(this->place.at("folder")));
    this->place.putLink("folder", "link");
    EXPECT_TRUE(this->files.isWritableFolder(this->place.at("link")));
    this->place.putFile("file", "");
    EXPECT_FALSE(this->files.isWritableFolder(this->place.at("file")));
    EXPECT_FALSE(this->files.isWritableFolder(this->place.readOnlyFolder()));
}

TYPED_TEST(FileManagerContractTest, FilesBeneath_AreFilesOnTheWayDown) {
    this->place.putFolder("folder");
    this->place.putFolder("folder/deep");
    this->place.putFile("folder/deep/film é", "12345");
    this->place.putFile("outside", "x");
    const QByteArray folder = this->place.at("folder").toUtf8();
    this->place.putFile("folder/second", "12");
    const auto found = this->files.filesBeneath(
        folder, {"deep/film é", "deep/not there", "second", "deep/film é"});
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].path, folder + "/deep/film é");
    EXPECT_EQ(found[0].size, 5);
    EXPECT_LT(std::abs(found[0].changed.secsTo(QDateTime::currentDateTimeUtc())), 60);
    EXPECT_EQ(found[1].path, folder + "/second");
    EXPECT_EQ(found[2].path, found[0].path);
    for (const char* name :
         {"", "deep", "not there", "../outside", "deep/../../outside", "/deep/film é"})
        EXPECT_TRUE(this->files.filesBeneath(folder, {name}).empty()) << name;
}

TYPED_TEST(FileManagerContractTest, FilesChangedSince_AreThoseNotPassedOver) {
    this->place.putFolder("folder");
    this->place.putFolder("folder/deep");
    this->place.putFolder("folder/shut");
    this->place.putFile("folder/deep/film", "12345");
    this->place.putFile("folder/shut/film", "x");
    this->place.putFile("folder/half", "x");
    this->place.putFile("outside", "x");
    const QByteArray folder = this->place.at("folder").toUtf8();
    const auto passedOver = [](QByteArrayView name) { return name == "shut" || name == "half"; };
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const auto changed = this->files.filesChangedSince(folder, now.addSecs(-60), passedOver);
    ASSERT_EQ(changed.size(), 1U);
    EXPECT_EQ(changed[0].path, folder + "/deep/film");
    EXPECT_EQ(changed[0].size, 5);
    EXPECT_TRUE(this->files.filesChangedSince(folder, now.addSecs(60), passedOver).empty());
    EXPECT_TRUE(this->files.filesChangedSince("/not/there", now.addSecs(-60), passedOver).empty());
}

TYPED_TEST(FileManagerContractTest, Home_HasNoClosingSlash) {
    const QString home = this->files.homeDirectory();
    EXPECT_TRUE(home.startsWith(u'/')) << home.toStdString();
    EXPECT_FALSE(home.endsWith(u'/')) << home.toStdString();
}

TYPED_TEST(FileManagerContractTest, TemporaryFolder_IsMadeForTheUserAlone) {
    const FolderOrFault folder = this->files.temporaryFolder();
    EXPECT_TRUE(folder.path.startsWith(u'/')) << folder.fault.toStdString();
    EXPECT_FALSE(folder.path.endsWith(u'/'));
    EXPECT_TRUE(this->files.isWritableFolder(folder.path));
    EXPECT_EQ(this->place.mode(folder.path), 0700U);
    EXPECT_EQ(this->files.temporaryFolder().path, folder.path) << "the same at the next time";
    this->place.removeTemporaryFolder();
    EXPECT_EQ(this->files.temporaryFolder().path, folder.path) << "when it was cleaned away";
    EXPECT_TRUE(this->files.isWritableFolder(folder.path));
}

TYPED_TEST(FileManagerContractTest, TemporaryFolderOfSomebodyElse_IsRefused) {
    this->place.letSomebodyPrepareTheTemporaryFolder();
    const FolderOrFault folder = this->files.temporaryFolder();
    EXPECT_EQ(folder.path, QString());
    EXPECT_NE(folder.fault, QString());
}

TYPED_TEST(FileManagerContractTest, Remove_TakesFilesLinksAndEmptyFolders) {
    auto& place = this->place;
    place.putFile("kept", "x");
    place.putLink("kept", "link");
    EXPECT_EQ(this->files.removeItem(place.at("link")), std::nullopt);
    EXPECT_FALSE(place.isLink("link"));
    EXPECT_EQ(place.content("kept"), "x") << "the link went, not what it leads to";
    EXPECT_EQ(this->files.removeItem(place.at("kept")), std::nullopt);
    EXPECT_FALSE(this->files.fileExistsAtPath(place.at("kept")));
    place.putFolder("empty");
    EXPECT_EQ(this->files.removeItem(place.at("empty")), std::nullopt);
    EXPECT_FALSE(this->files.fileExistsAtPath(place.at("empty")));
}

TYPED_TEST(FileManagerContractTest, Remove_KeepsAFullFolderAndSaysSo) {
    auto& place = this->place;
    place.putFolder("full");
    place.putFile("full/x", "x");
    EXPECT_EQ(this->files.removeItem(place.at("full")),
              QString(place.at("full") + u": Directory not empty"));
    EXPECT_EQ(place.content("full/x"), "x");
    EXPECT_EQ(this->files.removeItem(place.at("nothing")),
              QString(place.at("nothing") + u": No such file or directory"));
}

TYPED_TEST(FileManagerContractTest, Kept_StaysWhenTheFirstNameGoes) {
    auto& place = this->place;
    place.putFile("key", "secret");
    ASSERT_EQ(this->files.changeMode(place.at("key"), 0640), 0);
    EXPECT_EQ(this->files.keepUnder(place.at("key"), place.at("key of then")), std::nullopt);
    EXPECT_EQ(place.mode(place.at("key of then")), 0640U);
    EXPECT_EQ(this->files.removeItem(place.at("key")), std::nullopt);
    place.putFile("key", "another");
    EXPECT_EQ(place.content("key of then"), "secret");
    EXPECT_EQ(place.count(), 2);
}

TYPED_TEST(FileManagerContractTest, Kept_TouchesNothingThatIsThere) {
    auto& place = this->place;
    place.putFile("key", "new");
    place.putFile("kept", "older");
    place.putFolder("folder");
    place.putLink("nowhere", "link");
    for (const char* taken : {"kept", "folder", "link"}) {
        const FileFault fault = this->files.keepUnder(place.at("key"), place.at(taken));
        ASSERT_TRUE(fault) << taken;
        EXPECT_TRUE(fault->endsWith(u"File exists")) << fault->toStdString();
    }
    EXPECT_EQ(place.content("kept"), "older");
    for (const char* wrong : {"folder", "not there"})
        EXPECT_TRUE(this->files.keepUnder(place.at(wrong), place.at("x"))) << wrong;
    EXPECT_TRUE(this->files.keepUnder(place.at("key"), place.readOnlyFolder()));
    EXPECT_FALSE(this->files.fileExistsAtPath(place.at("x")));
}

TYPED_TEST(FileManagerContractTest, Write_ReplacesTheFileWholeForTheUserAlone) {
    auto& place = this->place;
    place.putFile("script", "a much longer text than the next one");
    EXPECT_EQ(this->files.writeAtomically(place.at("script"), "new\n"), std::nullopt);
    EXPECT_EQ(place.content("script"), "new\n");
    EXPECT_EQ(place.mode(place.at("script")), 0600U);
    EXPECT_EQ(place.count(), 1) << "nothing beside it";
}

TYPED_TEST(FileManagerContractTest, Write_NeverFollowsAPlantedLink) {
    auto& place = this->place;
    place.putFile("precious", "kept");
    for (const char* target : {"precious", "not there yet"}) {
        (void)this->files.removeItem(place.at("script"));
        place.putLink(target, "script");
        EXPECT_EQ(this->files.writeAtomically(place.at("script"), "new\n"), std::nullopt);
        EXPECT_EQ(place.content("script"), "new\n");
        EXPECT_FALSE(place.isLink("script"));
    }
    EXPECT_EQ(place.content("precious"), "kept");
    EXPECT_FALSE(this->files.fileExistsAtPath(place.at("not there yet")));
}

TYPED_TEST(FileManagerContractTest, WriteThatFails_LeavesTheOldAndNothingBeside) {
    auto& place = this->place;
    place.putFolder("script");
    const int before = place.count();
    const FileFault fault = this->files.writeAtomically(place.at("script"), "new\n");
    ASSERT_TRUE(fault.has_value());
    EXPECT_TRUE(fault->startsWith(place.at("script"))) << fault->toStdString();
    EXPECT_TRUE(this->files.isWritableFolder(place.at("script")));
    EXPECT_EQ(place.count(), before);
}

TYPED_TEST(FileManagerContractTest, ChangeMode_HandsTheSystemsResultBack) {
    auto& place = this->place;
    place.putFile("script", "x");
    EXPECT_EQ(this->files.changeMode(place.at("script"), 0755), 0);
    EXPECT_EQ(place.mode(place.at("script")), 0755U);
    place.putLink("script", "link");
    EXPECT_EQ(this->files.changeMode(place.at("link"), 0700), 0);
    EXPECT_EQ(place.mode(place.at("script")), 0700U);
    EXPECT_EQ(this->files.changeMode(place.at("nothing"), 0755), -1);
}

TYPED_TEST(FileManagerContractTest, Claim_IsOnesAloneUntilItGoes) {
    auto& place = this->place;
    place.putFolder("movies");
    place.putFolder("others");
    place.putLink("movies", "link");
    const int before = place.count();
    auto claim = this->files.claimFolder(place.at("movies"));
    ASSERT_TRUE(claim);
    EXPECT_FALSE(this->files.claimFolder(place.at("movies")));
    EXPECT_FALSE(this->files.claimFolder(place.at("link"))) << "the same folder";
    EXPECT_TRUE(this->files.claimFolder(place.at("others")));
    EXPECT_EQ(place.count(), before);
    claim.reset();
    EXPECT_TRUE(this->files.claimFolder(place.at("link")));
    EXPECT_TRUE(this->files.claimFolder(place.at("movies"))) << "nobody has kept that one";
}

TYPED_TEST(FileManagerContractTest, WhatCannotBeClaimed_CountsAsAClaim) {
    auto& place = this->place;
    place.putFile("file", "");
    for (const QString& path : {place.at("nothing"), place.at("file"), QString()}) {
        const auto claim = this->files.claimFolder(path);
        EXPECT_TRUE(claim) << path.toStdString();
        EXPECT_TRUE(this->files.claimFolder(path)) << path.toStdString();
    }
}

} // namespace
} // namespace kelvo
