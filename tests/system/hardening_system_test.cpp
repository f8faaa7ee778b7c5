// What people run is hardened: all built files, as readelf sees them.
#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QString readelf(const QStringList& options, const QString& file) {
    QProcess process;
    process.start(QStringLiteral("readelf"), QStringList(options) << QStringLiteral("-W") << file);
    if (!process.waitForFinished() || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The first line of `text` that holds `word`.
QString lineWith(QStringView word, const QString& text) {
    for (const QString& line : text.split(u'\n')) {
        if (line.contains(word))
            return line.simplified();
    }
    return {};
}

class HardeningSystemTest : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (!KELVO_HARDENED_BUILD)
            GTEST_SKIP() << "this preset is not what people run: it is built without hardening";
    }

    QString headers() const { return readelf({QStringLiteral("-hl")}, fFile); }
    QString dynamic() const { return readelf({QStringLiteral("-d")}, fFile); }
    QString imports() const { return readelf({QStringLiteral("--dyn-syms")}, fFile); }

    const QString fFile = QString::fromUtf8(GetParam());
};

TEST_P(HardeningSystemTest, Program_LiesAtAnotherAddressInEachRun) {
    EXPECT_TRUE(lineWith(u"Type:", headers()).contains(u"DYN")) << headers().toStdString();
    if (fFile.endsWith(u".so"))
        return; // only what is run by itself says more
    EXPECT_TRUE(
        lineWith(u"(FLAGS_1)", dynamic()).contains(QRegularExpression(QStringLiteral("\\bPIE\\b"))))
        << dynamic().toStdString();
}

TEST_P(HardeningSystemTest, Stack_IsNotExecutable) {
    const QStringList words = lineWith(u"GNU_STACK", headers()).split(u' ');
    ASSERT_EQ(words.size(), 8) << headers().toStdString();
    EXPECT_EQ(words[6], QStringLiteral("RW"));
}

TEST_P(HardeningSystemTest, NoSegment_IsBothWritableAndExecutable) {
    qsizetype loaded = 0;
    for (const QString& line : headers().split(u'\n')) {
        if (!line.trimmed().startsWith(u"LOAD"))
            continue;
        ++loaded;
        EXPECT_FALSE(line.contains(u" RWE ")) << line.toStdString();
    }
    EXPECT_GE(loaded, 2);
}

TEST_P(HardeningSystemTest, TablesOfAddresses_AreReadOnlyFromTheStart) {
    EXPECT_NE(lineWith(u"GNU_RELRO", headers()), QString());
    EXPECT_TRUE(lineWith(u"(FLAGS)", dynamic()).contains(u"BIND_NOW")) << dynamic().toStdString();
}

TEST_P(HardeningSystemTest, StackGuard_IsAtWork) {
    EXPECT_TRUE(lineWith(u"__stack_chk_fail", imports()).contains(u"UND"))
        << imports().toStdString();
}

TEST_P(HardeningSystemTest, FunctionsOfTheCLibrary_CheckTheirBuffers) {
    EXPECT_TRUE(imports().contains(QRegularExpression(
        QStringLiteral("UND __(?!stack)\\w+_chk(@|$)"), QRegularExpression::MultilineOption)))
        << imports().toStdString();
}

std::string nameOf(const ::testing::TestParamInfo<const char*>& info) {
    constexpr const char* cNames[] = {"Program", "Sentinel", "Part", "Window"};
    return cNames[info.index];
}

INSTANTIATE_TEST_SUITE_P(Files, HardeningSystemTest,
                         ::testing::Values(KELVO_PROGRAM, KELVO_SENTINEL, KELVO_PROGRAM_PART,
                                           KELVO_WINDOW),
                         nameOf);

} // namespace
} // namespace kelvo
