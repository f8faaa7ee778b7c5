#include "adapters/settings/plist_codec.h"
#include "adapters/settings/plist_guard.h"
#include "support/sanitized.h"
#include "support/stored_value.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <plist/plist.h>

#include <malloc.h>

#include <clocale>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace kelvo {
namespace {

QByteArray document(const QByteArray& content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n" + content +
           "\n</plist>\n";
}

QByteArray entry(const QByteArray& value) {
    return document("<dict><key>k</key>" + value + "</dict>");
}

/// What reading gives for the key "k"; invalid when the list cannot be read.
QVariant decodedEntry(const QByteArray& value) {
    const DecodedPlist decoded = decodePlist(entry(value));
    return decoded.root ? decoded.root->value(QStringLiteral("k")) : QVariant();
}

QVariantMap everyKind() {
    const QDateTime date(QDate(2026, 2, 28), QTime(23, 59, 59), Qt::UTC);
    return {
        {"bool", true},
        {"bool no", false},
        {"integer", qlonglong{42}},
        {"integer least", std::numeric_limits<qlonglong>::min()},
        {"integer most", std::numeric_limits<qlonglong>::max()},
        {"integer negative", qlonglong{-1}},
        {"integer unsigned", QVariant(std::numeric_limits<qulonglong>::max())},
        {"integer 2^63", QVariant(qulonglong{1} << 63)},
        {"real", 0.1},
        {"real whole", 30.0},
        {"real large", 1.7976931348623157e308},
        {"real small", 5e-324},
        {"real exact", 1.0000000000000002},
        {"string", QStringLiteral("tab\t line\n <&>\"' ]]> %@1 é 漢 😀 \u2028")},
        {"string blank", QStringLiteral("  around  ")},
        {"string empty", QStringLiteral("")},
        {"data", QByteArray("\0\1\xfe\xff", 4)},
        {"data empty", QByteArray("")},
        {"date", date},
        {"date first", QDateTime(QDate(1000, 1, 1), QTime(0, 0), Qt::UTC)},
        {"date last", QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC)},
        {"array", QVariantList{true, qlonglong{1}, 1.0, "1", date, QVariantList{QVariantList()}}},
        {"dictionary", QVariantMap{{"a", QVariantMap{{"b", QVariantList{QVariantMap()}}}}}},
        {"key <&> 😀", true},
        {"", "empty key"},
    };
}

TEST(PlistCodecTest, EveryKind_ComesBackTheSame) {
    const QVariantMap values = everyKind();
    const DecodedPlist decoded = decodePlist(encodePlist(values));
    ASSERT_TRUE(decoded.root) << decoded.fault.toStdString();
    EXPECT_EQ(decoded.root->keys(), values.keys());
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        EXPECT_TRUE(sameStoredValue(decoded.root->value(it.key()), it.value()))
            << it.key().toStdString() << ": "
            << ::testing::PrintToString(decoded.root->value(it.key()));
}

TEST(PlistCodecTest, Empty_ComesBackEmpty) {
    const DecodedPlist decoded = decodePlist(encodePlist({}));
    ASSERT_TRUE(decoded.root);
    EXPECT_TRUE(decoded.root->isEmpty());
}

/// As the function of libplist does that older and newer versions name differently.
void releasePlistText(char* text) {
    std::free(text);
}

QByteArray binaryForm(const QVariantMap& map) {
    const QByteArray xml = encodePlist(map);
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &node);
    char* text = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(node, &text, &length);
    const QByteArray bytes(text, static_cast<qsizetype>(length));
    releasePlistText(text);
    plist_free(node);
    return bytes;
}

/// A zero in place of each "Z".
QByteArray withZeros(QByteArray bytes) {
    return bytes.replace('Z', '\0');
}

TEST(PlistCodecTest, BinaryForm_IsReadTheSame) {
    const QVariantMap values = everyKind();
    const QByteArray bytes = binaryForm(values);
    ASSERT_TRUE(isBinaryPlist(bytes));
    const DecodedPlist decoded = decodePlist(bytes);
    ASSERT_TRUE(decoded.root) << decoded.fault.toStdString();
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        EXPECT_TRUE(sameStoredValue(decoded.root->value(it.key()), it.value()))
            << it.key().toStdString() << ": "
            << ::testing::PrintToString(decoded.root->value(it.key()));
}

TEST(PlistCodecTest, NumberOfAnObject_IsReadAsAnInteger) {
    plist_t root = plist_new_dict();
    plist_dict_set_item(root, "k", plist_new_uid(7));
    char* text = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(root, &text, &length);
    const DecodedPlist decoded = decodePlist(QByteArray(text, static_cast<qsizetype>(length)));
    releasePlistText(text);
    plist_free(root);
    ASSERT_TRUE(decoded.root) << decoded.fault.toStdString();
    EXPECT_TRUE(sameStoredValue(decoded.root->value(QStringLiteral("k")), qlonglong{7}));
}

TEST(PlistCodecTest, ReadingAndWriting_LeaveNoMemoryBehind) {
    if (cSanitized)
        GTEST_SKIP() << "a sanitizer has a heap of its own";
    const QByteArray bytes = encodePlist({{"k", QString(100'000, u'x')}});
    const auto used = [] {
        return static_cast<qint64>(::mallinfo2().uordblks + ::mallinfo2().hblkhd);
    };
    const qint64 before = used();
    for (int round = 0; round < 50; ++round)
        ASSERT_EQ(encodePlist(decodePlist(bytes).root.value_or(QVariantMap())), bytes);
    EXPECT_LT(used() - before, 1'000'000);
}

TEST(PlistCodecTest, CharactersThatXmlCannotCarry_BecomeReplacementCharacters) {
    QString text = QStringLiteral("a");
    for (const char16_t code : {0x00, 0x01, 0x0b, 0x1f, 0xfffe, 0xffff, 0xd800})
        text += QChar(code);
    text += QStringLiteral("b");
    const DecodedPlist decoded = decodePlist(encodePlist({{"k", text}, {"a\x01z", true}}));
    ASSERT_TRUE(decoded.root) << decoded.fault.toStdString();
    EXPECT_EQ(decoded.root->value(QStringLiteral("k")).toString(),
              QStringLiteral("a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDb"));
    EXPECT_TRUE(decoded.root->contains(QStringLiteral("a\uFFFDz")));
}

/// Lets the C library write numbers with a comma while it lives. The locale is that of every
/// machine, with this one sign changed: the languages that have a comma need not be installed.
class CommaLocale {
public:
    CommaLocale() {
        QFile plain(QStringLiteral("/usr/lib/locale/C.utf8/LC_NUMERIC"));
        QFile changed(fFolder.filePath(QStringLiteral("comma/LC_NUMERIC")));
        QByteArray bytes = plain.open(QFile::ReadOnly) ? plain.readAll() : QByteArray();
        const qsizetype point = bytes.indexOf('.');
        if (point < 0 || !QDir(fFolder.path()).mkpath(QStringLiteral("comma")) ||
            !changed.open(QFile::WriteOnly))
            return;
        bytes[point] = ',';
        changed.write(bytes);
        changed.close();
        ::setenv("LOCPATH", QFile::encodeName(fFolder.path()), 1);
        (void)std::setlocale(LC_NUMERIC, "comma");
        ::unsetenv("LOCPATH");
    }
    ~CommaLocale() { std::setlocale(LC_NUMERIC, fEarlier.c_str()); }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    static bool isThere() { return *std::localeconv()->decimal_point == ','; }

private:
    const std::string fEarlier = std::setlocale(LC_NUMERIC, nullptr);
    QTemporaryDir fFolder;
};

TEST(PlistCodecTest, Reals_DoNotDependOnTheLocale) {
    const CommaLocale comma;
    if (!CommaLocale::isThere())
        GTEST_SKIP() << "this C library's own locale cannot be changed to have a comma";
    EXPECT_TRUE(sameStoredValue(decodedEntry("<real>0.5</real>"), 0.5));
    const QByteArray written = encodePlist({{"k", 0.5}});
    EXPECT_TRUE(written.contains("<real>0.5</real>")) << written.toStdString();
    EXPECT_TRUE(CommaLocale::isThere()) << "the locale of others is not touched";
}

TEST(PlistCodecTest, WhatOthersWrite_IsRead) {
    EXPECT_TRUE(sameStoredValue(decodedEntry("<string>&amp;&#65;&lt;</string>"), "&A<"));
    EXPECT_TRUE(
        sameStoredValue(decodedEntry("<!-- note --><string><![CDATA[a<b]]></string>"), "a<b"));
    EXPECT_TRUE(sameStoredValue(decodedEntry("<integer>-7</integer>"), qlonglong{-7}));
    EXPECT_TRUE(decodePlist("\xef\xbb\xbf" + entry("<true/>")).root);
    EXPECT_TRUE(decodePlist("\xef\xbb\xbf<dict><key>k</key><true/></dict>").root);
    EXPECT_TRUE(decodePlist("<?xml version=\"1.0\" encoding=\"x-none\"?><plist><dict><key>k</key>"
                            "<true/></dict></plist>")
                    .root)
        << "as far as it can be read";
    EXPECT_TRUE(decodePlist("\n\n" + entry("<true/>") + "\n\n").root);
    EXPECT_TRUE(decodePlist("<plist><dict><key>k</key><true/></dict></plist>").root);
    EXPECT_TRUE(decodePlist("<dict><key>k</key><true/></dict>").root);
}

struct Encoded {
    const char* name;      ///< in the declaration; empty for none
    const char* converter; ///< Qt's name
    const char* mark;      ///< of the order of bytes
    int markSize;
};

QByteArray encodedPlist(const Encoded& encoded) {
    QString text =
        QStringLiteral("<plist><dict><key>k</key><string>Müller é</string></dict></plist>");
    if (*encoded.name)
        text.prepend(QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>\n")
                         .arg(QString::fromLatin1(encoded.name)));
    QStringEncoder encoder(encoded.converter);
    return QByteArray(encoded.mark, encoded.markSize) + QByteArray(encoder(text));
}

TEST(PlistCodecTest, EncodingsOfXml_AreRead) {
    for (const Encoded& encoded :
         {Encoded{"UTF-8", "UTF-8", "", 0}, Encoded{"UTF-8", "UTF-8", "\xef\xbb\xbf", 3},
          Encoded{"UTF-16", "UTF-16LE", "\xff\xfe", 2},
          Encoded{"UTF-16", "UTF-16BE", "\xfe\xff", 2}, Encoded{"utf-16", "UTF-16BE", "", 0},
          Encoded{"UTF-16LE", "UTF-16LE", "", 0}, Encoded{"", "UTF-16LE", "\xff\xfe", 2},
          Encoded{"UTF-32", "UTF-32LE", "\xff\xfe\0\0", 4},
          Encoded{"UTF-32", "UTF-32BE", "\0\0\xfe\xff", 4}, Encoded{"UTF-32BE", "UTF-32BE", "", 0},
          Encoded{"ISO-8859-1", "ISO-8859-1", "", 0}, Encoded{"iso-8859-1", "ISO-8859-1", "", 0},
          Encoded{"UTF-16", "UTF-8", "", 0}}) {
        const DecodedPlist decoded = decodePlist(encodedPlist(encoded));
        ASSERT_TRUE(decoded.root) << encoded.name << ' ' << encoded.converter << ": "
                                  << decoded.fault.toStdString();
        EXPECT_EQ(decoded.root->value(QStringLiteral("k")).toString(), QStringLiteral("Müller é"))
            << encoded.name << ' ' << encoded.converter;
    }
}

/// The text behind `declaration` when the bytes are those of ISO-8859-1.
QString readInLatin1(const QByteArray& declaration) {
    const auto root =
        decodePlist(declaration +
                    "<plist><dict><key>k</key><string>M\xfcller</string></dict></plist>")
            .root;
    return root ? root->value(QStringLiteral("k")).toString() : QStringLiteral("unreadable");
}

TEST(PlistCodecTest, EncodingOfTheDeclaration_IsFoundHoweverItIsWritten) {
    for (const char* declaration : {"<?xml version='1.0' encoding='ISO-8859-1' standalone='yes'?>",
                                    "\n <?xml version=\"1.0\"\tencoding = \"ISO-8859-1\" ?>\n",
                                    "<?xml version=\"1.0\"\nencoding\n=\n\"ISO-8859-1\"?>"})
        EXPECT_EQ(readInLatin1(declaration), u"Müller") << declaration;
    for (const char* none :
         {"", "<!-- encoding='ISO-8859-1' -->",
          "<?xml version='1.0'?><!-- encoding='ISO-8859-1'-->", "<?xml xencoding='ISO-8859-1'?>",
          "<?xml encoding 'ISO-8859-1'?>", "<?xml encoding:'ISO-8859-1'?>",
          "<?xml encoding=ISO-8859-1?>", "<?xml encoding='ISO-8859-1?>", "<?xml encoding=''?>",
          "<?xml encoding='?>", "<?xml encoding=?>", "<?xml encoding?>", "<?xml encoding='x'?>"})
        EXPECT_EQ(readInLatin1(none), u"M\ufffdller") << none;
}

TEST(PlistCodecTest, CutUtf16_IsAFault) {
    const QByteArray whole = encodedPlist({"UTF-16", "UTF-16LE", "\xff\xfe", 2});
    for (qsizetype length = 0; length < whole.size() - 1; ++length)
        ASSERT_FALSE(decodePlist(whole.first(length)).root) << length;
}

TEST(PlistCodecTest, BrokenUtf8_IsShownAsReplacementCharacter) {
    EXPECT_EQ(decodedEntry("<string>a\xffz</string>").toString(), QStringLiteral("a\uFFFDz"));
}

TEST(PlistCodecTest, EveryCut_IsAFault) {
    const QByteArray whole = encodePlist(everyKind());
    const qsizetype end = whole.lastIndexOf("</plist>") + 8;
    for (qsizetype length = 0; length < end; ++length) {
        const DecodedPlist decoded = decodePlist(whole.first(length));
        ASSERT_FALSE(decoded.root) << "cut at " << length << " of " << whole.size();
        ASSERT_FALSE(decoded.fault.isEmpty());
    }
    EXPECT_TRUE(decodePlist(whole.first(end)).root);
}

TEST(PlistCodecTest, CutAndPaddedWithZeros_IsAFault) {
    QByteArray bytes = encodePlist(everyKind());
    std::fill(bytes.begin() + bytes.size() / 2, bytes.end(), '\0');
    EXPECT_FALSE(decodePlist(bytes).root);
    EXPECT_FALSE(decodePlist(QByteArray(4096, '\0')).root);
}

TEST(PlistCodecTest, WrongRoot_IsAFault) {
    for (const QByteArray& root :
         {QByteArray("<array><true/></array>"), QByteArray("<string>x</string>"),
          QByteArray("<integer>1</integer>"), QByteArray("<true/>"), QByteArray("")}) {
        const DecodedPlist decoded = decodePlist(document(root));
        EXPECT_FALSE(decoded.root) << root.toStdString();
        EXPECT_EQ(decoded.fault,
                  root.isEmpty() ? u"it is no property list" : u"its root is no dictionary")
            << root.toStdString();
    }
}

TEST(PlistCodecTest, TooLarge_IsAFault) {
    QByteArray bytes = entry("<string>" + QByteArray(cLargestPlist, 'x') + "</string>");
    EXPECT_FALSE(decodePlist(bytes).root);
}

TEST(PlistCodecTest, DeepNesting_FaultsOnlyBeyondTheLimit) {
    const auto nested = [](int arrays) {
        return entry(QByteArray("<array>").repeated(arrays) +
                     QByteArray("</array>").repeated(arrays));
    };
    EXPECT_TRUE(decodePlist(nested(cDeepestStoredValue)).root);
    EXPECT_EQ(decodePlist(nested(cDeepestStoredValue + 1)).fault, u"it is nested too deep");
    EXPECT_FALSE(decodePlist(nested(15'000)).root);
    EXPECT_FALSE(decodePlist(nested(1'000'000)).root);
}

TEST(PlistCodecTest, DeepestStoredValue_IsReadBack) {
    QVariant value = QVariantList();
    for (int depth = 0; depth < 1000; ++depth)
        value = QVariantList{value};
    const QVariant fitting = storedValue(value);
    const DecodedPlist decoded = decodePlist(encodePlist({{"k", fitting}}));
    ASSERT_TRUE(decoded.root) << decoded.fault.toStdString();
    EXPECT_TRUE(sameStoredValue(decoded.root->value(QStringLiteral("k")), fitting));
}

/// A binary list of `levels` arrays, each with `copies` references to the next one; the last one
/// refers to object `last`.
QByteArray binaryArrays(int levels, int copies, int last) {
    QByteArray bytes("bplist00");
    QByteArray table;
    for (int level = 0; level <= levels; ++level) {
        const int child = level < levels ? level + 1 : last;
        table.append(static_cast<char>(bytes.size() >> 8)).append(static_cast<char>(bytes.size()));
        bytes.append(static_cast<char>(0xa0 | copies));
        for (int copy = 0; copy < copies; ++copy)
            bytes.append(static_cast<char>(child >> 8)).append(static_cast<char>(child));
    }
    table.append(static_cast<char>(bytes.size() >> 8)).append(static_cast<char>(bytes.size()));
    bytes.append('\x09');
    const auto number = [](quint64 value) {
        QByteArray text;
        for (int shift = 56; shift >= 0; shift -= 8)
            text.append(static_cast<char>(value >> shift));
        return text;
    };
    const auto tableAt = static_cast<quint64>(bytes.size());
    return bytes + table + QByteArray(6, '\0') + "\2\2" + number(static_cast<quint64>(levels) + 2) +
           number(0) + number(tableAt);
}

TEST(PlistCodecTest, BinaryThatUnfoldsWithoutEnd_IsAFault) {
    EXPECT_EQ(plistFault(binaryArrays(3, 2, 4)), QString());
    EXPECT_FALSE(plistFault(binaryArrays(40, 2, 41)).isEmpty()) << "2^40 parts";
    EXPECT_FALSE(plistFault(binaryArrays(3, 2, 0)).isEmpty()) << "a circle";
    EXPECT_FALSE(plistFault(binaryArrays(5000, 1, 5001)).isEmpty()) << "5000 levels";
    EXPECT_FALSE(plistFault(binaryArrays(3, 2, 999)).isEmpty()) << "no such object";
}

TEST(PlistCodecTest, BinaryKeyWithAZero_IsAFault) {
    for (const char* key : {"Z", "keyZ", "a longer key than fifteen, Z", "東京Z"}) {
        const QVariantMap inner{{QString::fromUtf8(key), true}};
        EXPECT_FALSE(decodePlist(withZeros(binaryForm(inner))).root) << key;
        EXPECT_FALSE(decodePlist(withZeros(binaryForm({{"in", QVariantList{inner}}}))).root) << key;
    }
    const DecodedPlist value = decodePlist(withZeros(binaryForm({{"key", "a Z"}})));
    ASSERT_TRUE(value.root) << "a value may hold one: " << value.fault.toStdString();
    EXPECT_TRUE(value.root->value(QStringLiteral("key")).toString().startsWith(u"a "));
}

TEST(PlistCodecTest, Noise_NeverCrashes) {
    constexpr unsigned cSeed = 20260321;
    std::mt19937 random(cSeed);
    const QByteArray xml = encodePlist(everyKind());
    const QByteArray binary = binaryArrays(3, 2, 4);
    int refused = 0;
    for (int round = 0; round < 4000; ++round) {
        QByteArray bytes = round % 3 == 0 ? xml : round % 3 == 1 ? binary : QByteArray();
        if (bytes.isEmpty()) {
            for (unsigned i = random() % 200; i > 0; --i)
                bytes.append(static_cast<char>(random()));
        }
        for (unsigned i = random() % 8; i > 0 && !bytes.isEmpty(); --i)
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
                static_cast<char>(random());
        const DecodedPlist decoded = decodePlist(bytes);
        ASSERT_NE(decoded.root.has_value(), !decoded.fault.isEmpty());
        refused += decoded.root ? 0 : 1;
        if (decoded.root) {
            ASSERT_TRUE(decodePlist(encodePlist(*decoded.root)).root);
        }
    }
    EXPECT_GT(refused, 1000) << "seed " << cSeed;
}

} // namespace
} // namespace kelvo
