// Each guard met by a list that has no other fault.
#include "adapters/settings/plist_guard.h"
#include "support/stored_value.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <vector>

namespace kelvo {
namespace {

using Objects = std::vector<QByteArray>;

QByteArray number(quint64 value, int size) {
    QByteArray bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.append(static_cast<char>(value >> shift));
    return bytes;
}

/// A binary list with the objects one behind the other, the first one its root.
struct BinaryList {
    Objects objects;
    quint64 top = 0;
    int offsetSize = 4;
    int referenceSize = 1;
    std::optional<quint64> count = {};        ///< of the objects, where it lies
    std::optional<quint64> table = {};        ///< where that of the offsets is, where it lies
    std::map<std::size_t, quint64> lies = {}; ///< of where an object is

    QByteArray bytes() const {
        QByteArray list("bplist00");
        QByteArray offsets;
        for (std::size_t i = 0; i < objects.size(); ++i) {
            const auto at = static_cast<quint64>(list.size());
            offsets += number(lies.contains(i) ? lies.at(i) : at, offsetSize);
            list += objects[i];
        }
        const auto tableAt = static_cast<quint64>(list.size());
        return list + offsets + QByteArray(6, '\0') + number(static_cast<quint64>(offsetSize), 1) +
               number(static_cast<quint64>(referenceSize), 1) +
               number(count.value_or(objects.size()), 8) + number(top, 8) +
               number(table.value_or(tableAt), 8);
    }

    QString fault() const { return plistFault(bytes()); }
};

/// References are of two bytes.
QByteArray array(const std::vector<int>& children) {
    QByteArray bytes = "\xaf\x11" + number(children.size(), 2);
    for (const int child : children)
        bytes += number(static_cast<quint64>(child), 2);
    return bytes;
}

/// `levels` arrays, each in the one before; the last holds the object after them.
void appendChain(Objects& objects, int levels, std::optional<int> last = {}) {
    for (int level = 1; level <= levels; ++level) {
        const int next = static_cast<int>(objects.size()) + 1;
        objects.push_back(array({level == levels ? last.value_or(next) : next}));
    }
}

QString faultOf(const Objects& objects) {
    return BinaryList{.objects = objects, .referenceSize = 2}.fault();
}

const QByteArray cTrue("\x09", 1);
const QString cBrokenTable = QStringLiteral("its table of objects is broken");
const QString cOutside = QStringLiteral("one of its objects lies outside it");
const QString cCutObject = QStringLiteral("one of its objects is cut");
const QString cTooDeep = QStringLiteral("it is nested too deep");
const QString cZeroKey = QStringLiteral("one of its keys holds a zero");
const QString cTooMany = QStringLiteral("it unfolds to too many parts");

// -- whatever the kind

TEST(PlistGuardTest, Nothing_IsEmpty) {
    EXPECT_EQ(plistFault({}), u"it is empty");
}

TEST(PlistGuardTest, MoreThanTheLargest_IsTooLarge) {
    const QByteArray end = "</plist>";
    const QByteArray largest = QByteArray(cLargestPlist - end.size(), ' ') + end;
    EXPECT_EQ(plistFault(largest), QString());
    EXPECT_EQ(plistFault(QByteArray(' ' + largest)), u"it is larger than 16 MiB");
}

// -- XML

TEST(PlistGuardTest, XmlWithoutItsLastTag_HasNoEnd) {
    for (const char* whole : {"<plist><dict></dict></plist>", "<dict></dict>", " <dict></dict>\n",
                              "<plist/></plist>\n"})
        EXPECT_EQ(plistFault(whole), QString()) << whole;
    for (const char* cut : {"<plist><dict></dict>", "<dict>", "x<dict></dict>", "<array></array>",
                            "<plist><dict></dict></plist"})
        EXPECT_EQ(plistFault(cut), u"its end is missing") << cut;
}

TEST(PlistGuardTest, TwentyThousandContainers_AreTheMost) {
    const QByteArray most = QByteArray("<dict/>").repeated(10'000) +
                            QByteArray("<array>").repeated(10'000) +
                            QByteArray("<true/></array></dict>").repeated(20'000);
    EXPECT_EQ(plistFault(QByteArray(most + "</plist>")), QString());
    EXPECT_EQ(plistFault(QByteArray(most + "<dict></plist>")), u"it has too many parts");
    EXPECT_EQ(plistFault(QByteArray(most + "<array></plist>")), u"it has too many parts");
}

// -- binary

TEST(PlistGuardTest, BinaryWithoutRoomForAnObject_IsCut) {
    const QByteArray smallest = QByteArray("bplist00") + QByteArray(33, '\0');
    EXPECT_EQ(plistFault(smallest.first(40)), u"it is cut");
    EXPECT_EQ(plistFault(smallest), cBrokenTable);
}

TEST(PlistGuardTest, EachNumberOfTheTable_MustBePossible) {
    const Objects one{cTrue};
    EXPECT_EQ((BinaryList{.objects = one}.fault()), QString());
    EXPECT_EQ((BinaryList{.objects = one, .offsetSize = 8, .referenceSize = 8}.fault()), QString());
    EXPECT_EQ((BinaryList{.objects = one, .offsetSize = 1}.fault()), QString());
    QByteArray noOffsets = BinaryList{.objects = one}.bytes();
    noOffsets[noOffsets.size() - 26] = 0;
    EXPECT_EQ(plistFault(noOffsets), cBrokenTable);
    EXPECT_EQ((BinaryList{.objects = one, .offsetSize = 9}.fault()), cBrokenTable);
    EXPECT_EQ((BinaryList{.objects = one, .referenceSize = 0}.fault()), cBrokenTable);
    EXPECT_EQ((BinaryList{.objects = one, .referenceSize = 9}.fault()), cBrokenTable);
    EXPECT_EQ((BinaryList{.objects = one, .top = 1}.fault()), cBrokenTable);
    EXPECT_EQ((BinaryList{.objects = one, .count = 2}.fault()), cBrokenTable);
    EXPECT_EQ((BinaryList{.objects = one, .count = UINT64_MAX}.fault()), cBrokenTable);
    EXPECT_EQ((BinaryList{.objects = one, .table = 13}.fault()), cBrokenTable);
    EXPECT_EQ((BinaryList{.objects = one, .table = 14}.fault()), cBrokenTable);
    EXPECT_EQ((BinaryList{.objects = one, .table = UINT64_MAX}.fault()), cBrokenTable);
}

TEST(PlistGuardTest, ObjectBeforeOrBehindTheList_LiesOutside) {
    const BinaryList list{.objects = {cTrue}};
    const auto behind = static_cast<quint64>(list.bytes().size() - 32);
    for (const auto& [offset, fault] : std::map<quint64, QString>{{7, cOutside},
                                                                  {8, {}},
                                                                  {behind - 1, {}},
                                                                  {behind, cOutside},
                                                                  {UINT64_MAX >> 32, cOutside}})
        EXPECT_EQ((BinaryList{.objects = {cTrue}, .lies = {{0, offset}}}.fault()), fault) << offset;
}

TEST(PlistGuardTest, ObjectOfEachKindThatReachesIntoTheEnd_IsCut) {
    struct Kind {
        int marker;
        int unit;
    };
    // What is counted may take the table of offsets too, of 8 bytes, but no byte behind it.
    for (const auto& [marker, unit] : {Kind{0x40, 1}, Kind{0x50, 1}, Kind{0x60, 2}}) {
        const auto holding = [marker = marker](int count) {
            return BinaryList{.objects = {number(static_cast<quint64>(marker | count), 1)},
                              .offsetSize = 8}
                .fault();
        };
        EXPECT_EQ(holding(8 / unit), QString()) << marker;
        EXPECT_EQ(holding(8 / unit + 1), cCutObject) << marker;
    }
    // The table holds one number: 8, for the only object. Containers of that are their own circle.
    for (const auto& [marker, unit] : {Kind{0xa0, 2}, Kind{0xc0, 2}, Kind{0xd0, 4}}) {
        const auto holding = [marker = marker](int count) {
            return BinaryList{.objects = {number(static_cast<quint64>(marker | count), 1)},
                              .offsetSize = 8,
                              .referenceSize = 2}
                .fault();
        };
        EXPECT_EQ(holding(8 / unit), u"its objects contain themselves") << marker;
        EXPECT_EQ(holding(8 / unit + 1), cCutObject) << marker;
    }
}

TEST(PlistGuardTest, CountOfMoreThanFourteen_IsReadInItsOwnSize) {
    for (const int power : {0, 1, 2, 3}) {
        const QByteArray head = "\x5f" + number(static_cast<quint64>(0x10 | power), 1);
        EXPECT_EQ(
            (BinaryList{.objects = {head + number(20, 1 << power) + QByteArray(20, 'x')}}.fault()),
            QString())
            << power;
        EXPECT_EQ(
            (BinaryList{.objects = {head + number(25, 1 << power) + QByteArray(20, 'x')}}.fault()),
            cCutObject)
            << power;
    }
    EXPECT_EQ((BinaryList{.objects = {QByteArray("\x5f\x13") + QByteArray(8, '\xff')}}.fault()),
              cCutObject);
    const BinaryList last{.objects = {cTrue, "\x5f"}, .offsetSize = 1, .lies = {{0, 9}}};
    EXPECT_EQ(last.fault(), cCutObject) << "its count lies behind it";
}

TEST(PlistGuardTest, ReferenceToNoObject_IsAFault) {
    EXPECT_EQ(faultOf({array({1}), cTrue}), QString());
    EXPECT_EQ(faultOf({array({2}), cTrue}), u"it refers to an object that is not there");
}

TEST(PlistGuardTest, ObjectInItself_IsAFault) {
    EXPECT_EQ(faultOf({array({1, 1}), cTrue}), QString()) << "twice is no circle";
    EXPECT_EQ(faultOf({array({1}), array({0})}), u"its objects contain themselves");
}

TEST(PlistGuardTest, Depth_IsBoundedOnTheDeepestWayToAnObject) {
    const auto chain = [](int levels) {
        Objects objects;
        appendChain(objects, levels);
        objects.push_back(cTrue);
        return objects;
    };
    EXPECT_EQ(faultOf(chain(cDeepestStoredValue + 1)), QString());
    EXPECT_EQ(faultOf(chain(cDeepestStoredValue + 2)), cTooDeep);

    // The lower 200 are seen first right below the root, then below 100 others.
    const auto shared = [](int above) {
        Objects objects{array({1, 202})};
        appendChain(objects, 200);
        objects.push_back(cTrue);
        appendChain(objects, above, 1);
        return objects;
    };
    EXPECT_EQ(faultOf(shared(cDeepestStoredValue - 200)), QString());
    EXPECT_EQ(faultOf(shared(cDeepestStoredValue - 199)), cTooDeep);
}

TEST(PlistGuardTest, KeyWithAZero_IsAFault) {
    const auto keyed = [](const QByteArray& key) {
        return faultOf({QByteArray("\xd1\0\1\0\2", 5), key, QByteArray("\x52z\0", 3)});
    };
    EXPECT_EQ(keyed("\x52zz"), QString()) << "a value may hold one";
    EXPECT_EQ(keyed(QByteArray("\x61\0z", 3)), QString()) << "half a character is none";
    EXPECT_EQ(keyed(QByteArray("\x52z\0", 3)), cZeroKey);
    EXPECT_EQ(keyed(QByteArray("\x62\0z\0\0", 5)), cZeroKey);
    EXPECT_EQ(keyed(QByteArray("\x42z\0", 3)), QString()) << "data is no key that libplist takes";
}

TEST(PlistGuardTest, ListThatUnfolds_IsBoundedInParts) {
    const auto doubling = [](int levels) {
        Objects objects;
        for (int level = 1; level <= levels; ++level)
            objects.push_back(array({level, level}));
        objects.push_back(cTrue);
        return faultOf(objects);
    };
    EXPECT_EQ(doubling(17), QString()) << "262,143 parts";
    EXPECT_EQ(doubling(18), cTooMany) << "524,287 parts";

    const auto squared = [](int more) {
        return faultOf({array(std::vector<int>(453, 1)),
                        array(std::vector<int>(static_cast<std::size_t>(882 + more), 2)), cTrue});
    };
    EXPECT_EQ(squared(0), QString()) << "400,000 parts";
    EXPECT_EQ(squared(1), cTooMany) << "453 parts more";
    std::vector<int> oneMore(453, 1);
    oneMore.push_back(2);
    EXPECT_EQ(faultOf({array(oneMore), array(std::vector<int>(882, 2)), cTrue}), cTooMany)
        << "400,001 parts";
    const auto texts = [](int size) {
        return faultOf(
            {array(std::vector<int>(453, 1)),
             "\x5f\x12" + number(static_cast<quint64>(size), 4) + QByteArray(size, 'x')});
    };
    EXPECT_EQ(texts(64 * 882), QString()) << "400,000 parts";
    EXPECT_EQ(texts(64 * 883), cTooMany) << "453 parts more";

    const auto repeating = [](int times, const char* marker) {
        const QByteArray text = marker + number(100'000, 4) + QByteArray(100'000, 'x');
        return faultOf({array(std::vector<int>(static_cast<std::size_t>(times), 1)), text});
    };
    for (const char* marker : {"\x5f\x12", "\x4f\x12"}) {
        EXPECT_EQ(repeating(250, marker), QString()) << "25 MB";
        EXPECT_EQ(repeating(260, marker), cTooMany) << "26 MB";
    }
}

} // namespace
} // namespace kelvo
