#include "adapters/process/utf8_collector.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

namespace kelvo {
namespace {

constexpr std::size_t cAmple = std::size_t{8} * 1024 * 1024;

Utf8Collector::Collected collectedOf(const std::string& bytes, std::size_t step, std::size_t kept) {
    Utf8Collector collector(kept);
    for (std::size_t done = 0; done < bytes.size();) {
        const std::size_t size = std::min({step, bytes.size() - done, collector.room().size()});
        std::memcpy(collector.room().data(), bytes.data() + done, size);
        collector.took(size);
        done += size;
    }
    EXPECT_EQ(collector.total(), static_cast<qint64>(bytes.size()));
    return collector.finish();
}

QString collected(const std::string& bytes, std::size_t step) {
    return collectedOf(bytes, step, cAmple).text;
}

TEST(Utf8CollectorTest, AnyBytesInAnyPieces_ReadAsInOnePiece) {
    const std::string alphabet = "az\x80\xbf\xc3\xe2\x82\xac\xed\xa0\xf0\x9f\x8e\xf5\xff";
    std::mt19937 random(7); // NOLINT: the same texts each time
    for (int round = 0; round < 3000; ++round) {
        std::string bytes;
        for (auto left = random() % 12; left > 0; --left)
            bytes += alphabet[random() % alphabet.size()];
        const QString whole = QString::fromUtf8(bytes);
        for (const std::size_t step : {1, 2, 3, 5, 100})
            ASSERT_EQ(collected(bytes, step), whole) << round << " in steps of " << step;
    }
}

TEST(Utf8CollectorTest, LongText_KeepsEveryCharacterAcrossTheBuffersEdges) {
    QString text;
    while (text.size() < 1'500'000)
        text += u"a\u00e9\u20ac\U0001f3ac";
    EXPECT_EQ(collected(text.toStdString(), 99'991), text);
}

TEST(Utf8CollectorTest, MoreThanIsKept_IsItsFirstAndItsLastHalf) {
    std::string bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += std::to_string(i) + ' ';
    for (const std::size_t kept : {10, 11, 1000, 4096, 23'889}) {
        const auto half = static_cast<qsizetype>(kept / 2);
        const auto rest = static_cast<qsizetype>(kept) - half;
        const QString whole = QString::fromStdString(bytes);
        const qint64 leftOut = whole.size() - static_cast<qint64>(kept);
        for (const std::size_t step : {1, 7, 1000, 100'000}) {
            const auto [text, missing] = collectedOf(bytes, step, kept);
            EXPECT_EQ(missing, leftOut);
            EXPECT_EQ(text, QString(whole.first(half) + u"\n… " + QString::number(leftOut) +
                                    u" bytes left out …\n" + whole.last(rest)))
                << kept << " in steps of " << step;
        }
        EXPECT_EQ(collectedOf(bytes.substr(0, kept), 7, kept).text, whole.first(half + rest));
    }
}

TEST(Utf8CollectorTest, WhatIsLeftOut_BeginsAndEndsBetweenCharacters) {
    // The first and the last of each length among them.
    for (const QString& sign :
         {QStringLiteral("\u0080"), QStringLiteral("\u00e9"), QStringLiteral("\u07ff"),
          QStringLiteral("\u0800"), QStringLiteral("\u20ac"), QStringLiteral("\uffee"),
          QStringLiteral("\U00010000"), QStringLiteral("\U0001f3ac")}) {
        const QString whole = sign.repeated(50);
        const std::string bytes = whole.toStdString();
        for (std::size_t kept = 16; kept < 24; ++kept) {
            const auto [text, leftOut] = collectedOf(bytes, 3, kept);
            const QString mark = u"\n… " + QString::number(leftOut) + u" bytes left out …\n";
            const QStringList parts = text.split(mark);
            ASSERT_EQ(parts.size(), 2) << text.toStdString();
            EXPECT_FALSE(text.contains(u'\ufffd')) << text.toStdString();
            EXPECT_EQ(parts.join(QString()).toUtf8().size() + leftOut, whole.toUtf8().size());
            const auto length = static_cast<std::size_t>(sign.toUtf8().size());
            EXPECT_EQ(parts[0].size(), sign.size() * static_cast<qsizetype>(kept / 2 / length));
            EXPECT_EQ(parts[1].size(),
                      sign.size() * static_cast<qsizetype>((kept - kept / 2) / length));
        }
    }
}

TEST(Utf8CollectorTest, NoBytes_GiveTheEmptyText) {
    EXPECT_EQ(collected({}, 1), QString());
}

} // namespace
} // namespace kelvo
