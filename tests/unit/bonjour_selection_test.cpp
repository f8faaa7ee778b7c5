#include "adapters/console/headless_outlets.h"
#include "discovery/bonjour_selection.h"
#include "discovery/record_texts.h"
#include "discovery/service_filter.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_browser.h"
#include "fakes/virtual_queues.h"
#include "support/array_controller.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

DNSSD_Service service(const QString& name, const QString& address) {
    DNSSD_Service made;
    made.name = name;
    made.type = QStringLiteral("_smb._tcp");
    made.hostTarget = QString(name).replace(u' ', u'-') + u".local";
    made.ip4Address = address;
    return made;
}

class BonjourSelectionTest : public ::testing::Test {
protected:
    BonjourSelectionTest() {
        rows.setShow([this] {
            ++contentSet;
            printedBefore = console.printed().size();
        });
    }

    /// What is printed after the count line and the devices' lines.
    static QStringList closing(const QString& content) {
        const QString rule = QStringLiteral("\n===============================================");
        const QString line = QStringLiteral("\n");
        return {line,
                line,
                rule,
                rule,
                rule,
                QStringLiteral("self.fArrayController? => [Optional(ArrayController)] "),
                QStringLiteral("self.fArrayController?.content[%1] ").arg(content),
                rule,
                rule,
                line,
                line};
    }

    VirtualMainQueue mainQueue;
    RecordingConsole console;
    ScriptedBrowser browser;
    QStringList presented; ///< every sheet so far
    bool available = true;
    ArrayController rows;
    int contentSet = 0;
    qsizetype printedBefore = 0; ///< the last time
    BonjourSelection selection{{
        .mainQueue = mainQueue,
        .console = console,
        .browser = browser,
        .presentSheet =
            [this](QStringView identifier) {
                presented.append(identifier.toString());
                return available;
            },
        .fArrayController = rows,
    }};
};

TEST_F(BonjourSelectionTest, SelectSource_OpensASheetEachTime) {
    selection.ibSelectSourceByBonjor();
    selection.ibSelectSourceByBonjor();
    EXPECT_EQ(presented, (QStringList{"BonjourVCstoryboardID", "BonjourVCstoryboardID"}));
    EXPECT_EQ(console.printed(),
              (QStringList{"Inside ViewController->ibSelectSourceByBonjor(_:).......",
                           "Inside ViewController->ibSelectSourceByBonjor(_:)......."}));
}

TEST_F(BonjourSelectionTest, NoSuchSheet_StopsTheProgram) {
    available = false;
    EXPECT_DEATH(selection.ibSelectSourceByBonjor(),
                 "Unable to instantiate ViewController in Main.storyboard!\n");
}

TEST_F(BonjourSelectionTest, SelectDestination_OnlyLeavesALine) {
    selection.ibSelectDestByBonjor();
    EXPECT_EQ(console.printed(),
              QStringList{"Inside ViewController->ibSelectDestByBonjor(_:)......."});
    EXPECT_TRUE(presented.isEmpty());
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(BonjourSelectionTest, Search_ShowsEverythingAfterOneSecond) {
    browser.announce(service(QStringLiteral("My Mac"), QStringLiteral("10.0.0.2")));
    browser.announce(service(QStringLiteral("Other"), QString()));
    browser.announce(service(QStringLiteral("Twin"), QStringLiteral("10.0.0.2")));
    qsizetype linesBefore = 0;
    browser.whenBrowsed = [&] { linesBefore = console.printed().size(); };
    selection.ibSearchBonjour();
    EXPECT_EQ(linesBefore, 1);
    EXPECT_EQ(browser.browsed, QStringList{"_smb"});
    mainQueue.advance(0.99);
    EXPECT_EQ(contentSet, 0);
    mainQueue.advance(0.01);
    EXPECT_EQ(rows.content(), std::optional(browser.services()));
    EXPECT_EQ(console.printed(),
              (QStringList{"Inside ViewController->ibSearchBonjour(_:).......",
                           "self.fFoundServicesArray[Optional(3)] item",
                           "device => [My-Mac.local] @ [10.0.0.2] -> [My Mac] is type[_smb._tcp]",
                           "device => [Other.local] @ [] -> [Other] is type[_smb._tcp]",
                           "device => [Twin.local] @ [10.0.0.2] -> [Twin] is type[_smb._tcp]"} +
               closing(QStringLiteral("Optional([DNSSD_Service(My Mac, My-Mac.local, 10.0.0.2), "
                                      "DNSSD_Service(Other, Other.local, ), "
                                      "DNSSD_Service(Twin, Twin.local, 10.0.0.2)])"))));
}

TEST_F(BonjourSelectionTest, BeforeAnyScan_TheListIsEmptied) {
    selection.ibShowBonjourListInfo();
    EXPECT_EQ(rows.content(), std::nullopt);
    EXPECT_EQ(contentSet, 1);
    EXPECT_EQ(printedBefore, 1) << "the count alone";
    EXPECT_EQ(console.printed(),
              QStringList{"self.fFoundServicesArray[nil] item"} + closing(QStringLiteral("nil")));
}

TEST_F(BonjourSelectionTest, NothingFound_IsAnEmptyList) {
    selection.ibSearchBonjour();
    mainQueue.advance(1);
    EXPECT_EQ(rows.content(), std::optional(DNSSD_Services()));
    EXPECT_TRUE(
        console.printed().contains(QStringLiteral("self.fFoundServicesArray[Optional(0)] item")));
}

TEST_F(BonjourSelectionTest, WithoutAWindow_TheSheetIsOnlySpokenOf) {
    HeadlessView view(console);
    ArrayController noRows;
    BonjourSelection headless({
        .mainQueue = mainQueue,
        .console = console,
        .browser = browser,
        .presentSheet = [&](QStringView identifier) { return view.presentSheet(identifier); },
        .fArrayController = noRows,
    });
    headless.ibSelectSourceByBonjor();
    EXPECT_EQ(console.printed().constLast(),
              u"There is no window to show the sheet BonjourVCstoryboardID on.");
    browser.announce(service(QStringLiteral("My Mac"), QStringLiteral("10.0.0.2")));
    headless.ibSearchBonjour();
    mainQueue.advance(1);
    EXPECT_EQ(noRows.content(), std::optional(browser.services()));
    EXPECT_EQ(noRows.selectionIndex(), -1);
    EXPECT_FALSE(view.presentSheet(u"AnotherSheet"));
}

TEST(ServiceFilterTest, FirstRecordOfAnAddress_IsAdmitted) {
    QSet<QString> addresses;
    EXPECT_EQ(admit(service(QStringLiteral("a"), QStringLiteral("1.2.3.4")), addresses),
              Admission::Admitted);
    EXPECT_EQ(admit(service(QStringLiteral("b"), QStringLiteral("1.2.3.4")), addresses),
              Admission::Duplicate);
    EXPECT_EQ(admit(service(QStringLiteral("c"), QStringLiteral("1.2.34")), addresses),
              Admission::BadKey);
    EXPECT_EQ(admit(service(QStringLiteral("d"), QString()), addresses), Admission::BadKey);
    EXPECT_EQ(addresses, QSet<QString>{QStringLiteral("1.2.3.4")});
}

TEST(RecordTextsTest, DictionaryInOneLine) {
    EXPECT_EQ(dictionaryText({.name = QStringLiteral("a\u202e\n"),
                              .type = QStringLiteral("_smb._tcp"),
                              .scheme = QStringLiteral("smb"),
                              .domain = QStringLiteral("local"),
                              .hostTarget = QStringLiteral("a.local"),
                              .ip4Address = QStringLiteral("10.0.0.2"),
                              .macAddress = QStringLiteral("00:11:22:33:44:55"),
                              .fullName = QStringLiteral("a._smb._tcp.local"),
                              .dateAdded = QDateTime({2026, 11, 29}, {18, 39, 58}, Qt::UTC),
                              .interface = 3,
                              .hostPort = 445,
                              .available = true}),
              u"[\"available\": true, \"dateAdded\": 2026-11-29 18:39:58 +0000, "
              "\"domain\": \"local\", \"fullName\": \"a._smb._tcp.local\", \"hostPort\": 445, "
              "\"hostTarget\": \"a.local\", \"interface\": 3, \"ip4Address\": \"10.0.0.2\", "
              "\"macAddress\": \"00:11:22:33:44:55\", \"name\": \"a\\u202e\\x0a\", "
              "\"scheme\": \"smb\", \"type\": \"_smb._tcp\"]");
}

TEST(RecordTextsTest, DateOfAnyYear_IsWrittenInFull) {
    for (const auto& [year, text] :
         {std::pair(987, "0987-06-05 04:03:02 +0000"), std::pair(2026, "2026-06-05 04:03:02 +0000"),
          std::pair(12345, "12345-06-05 04:03:02 +0000")}) {
        DNSSD_Service record;
        record.dateAdded = QDateTime(QDate(year, 6, 5), QTime(4, 3, 2), Qt::UTC);
        EXPECT_TRUE(dictionaryText(record).contains(
            QString(u"\"dateAdded\": " + QString::fromLatin1(text) + u", \"domain\"")))
            << year;
    }
}

TEST(RecordTextsTest, DictionaryInOneLine_NamesWhatTheStoredOneHolds) {
    const DNSSD_Service record;
    const QString line = dictionaryText(record);
    qsizetype from = 0;
    for (const QString& key : record.asDictionary().value().keys()) {
        const qsizetype place = line.indexOf(QString(u'"' + key + u"\": "), from);
        EXPECT_GE(place, from) << key.toStdString() << " in its place in " << line.toStdString();
        from = place;
    }
    EXPECT_EQ(line.count(u"\": "), record.asDictionary().value().size());
    EXPECT_TRUE(line.startsWith(u"[\"available\": false, ")) << line.toStdString();
}

TEST(RecordTextsTest, Optionals) {
    EXPECT_EQ(listText(std::optional<DNSSD_Services>()), u"nil");
    EXPECT_EQ(listText(std::optional(DNSSD_Services())), u"Optional([])");
    EXPECT_EQ(countText(std::nullopt), u"nil");
}

TEST(RecordTextsTest, Table) {
    const auto text = [](const QMap<QString, QString>& dictionaries) {
        return tableText(dictionaries).join(QString());
    };
    EXPECT_EQ(text({}), u"Optional([:])");
    EXPECT_EQ(text({{"1.2.3.4", "[\"name\": \"a\"]"}}),
              u"Optional([\"1.2.3.4\": [\"name\": \"a\"]])");
    EXPECT_EQ(text({{"1.2.3.5", "[b]"}, {"1.2.3.4\u202e", "[a]"}}),
              u"Optional([\"1.2.3.4\\u202e\": [a], \"1.2.3.5\": [b]])");
}

} // namespace
} // namespace kelvo
