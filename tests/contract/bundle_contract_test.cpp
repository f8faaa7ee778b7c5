#include "adapters/settings/file_bundle.h"
#include "adapters/settings/plist_codec.h"
#include "fakes/memory_bundle.h"
#include "fakes/recording_console.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class MemoryResources {
public:
    const Bundle& bundle() const { return fBundle; }
    void addFile(const QString& name) { fBundle.addFile(name); }
    void addPropertyList(const QString& name, const std::optional<QVariantMap>& content) {
        fBundle.addPropertyList(name, content);
    }

private:
    MemoryBundle fBundle;
};

class FileResources {
public:
    const Bundle& bundle() const { return fBundle; }
    void addFile(const QString& name) { write(name, "content"); }
    void addPropertyList(const QString& name, const std::optional<QVariantMap>& content) {
        write(name + QStringLiteral(".plist"), content ? encodePlist(*content) : "no list");
    }

protected:
    void write(const QString& name, const QByteArray& bytes) {
        QFile file(fFolder.filePath(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir fFolder;
    FileBundle fBundle{fFolder.path()};
};

template <typename Resources>
class BundleContractTest : public ::testing::Test {
protected:
    Resources fResources;
};

using AllResources = ::testing::Types<MemoryResources, FileResources>;
class ResourcesNames {
public:
    template <typename Resources>
    static std::string GetName(int) {
        return std::is_same_v<Resources, MemoryResources> ? "Memory" : "File";
    }
};
TYPED_TEST_SUITE(BundleContractTest, AllResources, ResourcesNames);

TYPED_TEST(BundleContractTest, PathForResource_WithAndWithoutEnding) {
    this->fResources.addFile(QStringLiteral("watchdog"));
    this->fResources.addFile(QStringLiteral("Main.ui"));
    const Bundle& bundle = this->fResources.bundle();
    const auto plain = bundle.pathForResource(QStringLiteral("watchdog"), QString());
    ASSERT_TRUE(plain);
    EXPECT_TRUE(plain->endsWith(QStringLiteral("/watchdog")));
    const auto typed = bundle.pathForResource(QStringLiteral("Main"), QStringLiteral("ui"));
    ASSERT_TRUE(typed);
    EXPECT_TRUE(typed->endsWith(QStringLiteral("/Main.ui")));
}

TYPED_TEST(BundleContractTest, PathForResource_MissingFileIsNothing) {
    this->fResources.addFile(QStringLiteral("watchdog"));
    const Bundle& bundle = this->fResources.bundle();
    EXPECT_FALSE(bundle.pathForResource(QStringLiteral("Watchdog"), QString()));
    EXPECT_FALSE(bundle.pathForResource(QStringLiteral("watchdog"), QStringLiteral("exe")));
    EXPECT_FALSE(bundle.pathForResource(QString(), QString()));
    EXPECT_FALSE(bundle.pathForResource(QStringLiteral("."), QString()));
    EXPECT_FALSE(bundle.pathForResource(QStringLiteral(".."), QString()));
}

TYPED_TEST(BundleContractTest, PathForResource_NameWithASlashIsNeverFound) {
    this->fResources.addFile(QStringLiteral("watchdog"));
    const Bundle& bundle = this->fResources.bundle();
    for (const char* name : {"./watchdog", "/watchdog", "/etc/passwd", "../etc/passwd"})
        EXPECT_FALSE(bundle.pathForResource(QString::fromLatin1(name), QString())) << name;
    EXPECT_FALSE(bundle.pathForResource(QStringLiteral("."), QStringLiteral("/watchdog")));
}

TYPED_TEST(BundleContractTest, PropertyList_IsItsDictionary) {
    const QVariantMap content{{"tag", qlonglong{100}}, {"on", true}};
    this->fResources.addPropertyList(QStringLiteral("FactoryDefaults"), content);
    EXPECT_EQ(this->fResources.bundle().propertyList(QStringLiteral("FactoryDefaults")), content);
}

TYPED_TEST(BundleContractTest, PropertyList_MissingOrUnreadableIsNothing) {
    this->fResources.addPropertyList(QStringLiteral("Broken"), std::nullopt);
    const Bundle& bundle = this->fResources.bundle();
    EXPECT_EQ(bundle.propertyList(QStringLiteral("Broken")), std::nullopt);
    EXPECT_EQ(bundle.propertyList(QStringLiteral("Absent")), std::nullopt);
    EXPECT_EQ(bundle.propertyList(QStringLiteral("../Broken")), std::nullopt);
}

TYPED_TEST(BundleContractTest, Version_IsThatOfInfo) {
    RecordingConsole console;
    this->fResources.addPropertyList(
        QStringLiteral("Info"),
        QVariantMap{{"CFBundleShortVersionString", "1.2"}, {"CFBundleVersion", "34"}});
    EXPECT_EQ(this->fResources.bundle().getFullVersionString(console), QStringLiteral("1.2 (34)"));
    EXPECT_TRUE(console.lines().empty());
}

TYPED_TEST(BundleContractTest, BrokenInfo_IsNoVersionAndALine) {
    RecordingConsole console;
    this->fResources.addPropertyList(QStringLiteral("Info"), std::nullopt);
    EXPECT_EQ(this->fResources.bundle().getFullVersionString(console), std::nullopt);
    EXPECT_EQ(console.logged().size(), 1);
}

class FileBundleTest : public ::testing::Test, public FileResources {};

TEST_F(FileBundleTest, PathForResource_IsTheRealFile) {
    addFile(QStringLiteral("watchdog"));
    EXPECT_EQ(bundle().pathForResource(QStringLiteral("watchdog"), QString()),
              fFolder.filePath(QStringLiteral("watchdog")));
}

TEST_F(FileBundleTest, Folder_IsNoResource) {
    ASSERT_TRUE(QDir(fFolder.path()).mkdir(QStringLiteral("watchdog")));
    EXPECT_FALSE(bundle().pathForResource(QStringLiteral("watchdog"), QString()));
}

TEST_F(FileBundleTest, WrongRoot_IsNothing) {
    write(QStringLiteral("List.plist"), "<plist version=\"1.0\"><array/></plist>");
    EXPECT_EQ(bundle().propertyList(QStringLiteral("List")), std::nullopt);
}

TEST_F(FileBundleTest, ProgramsOwnInfo_HasItsVersion) {
    RecordingConsole console;
    const FileBundle own(QStringLiteral(KELVO_RESOURCES));
    EXPECT_EQ(own.getFullVersionString(console), QStringLiteral(KELVO_VERSION));
}

} // namespace
} // namespace kelvo
