#include "adapters/process/utf8_collector.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>

namespace kelvo {
namespace {

QString collected(const std::string& bytes, std::size_t step) {
    Utf8Collector collector;
    for (std::size_t done = 0; done < bytes.size();) {
        const std::size_t size = std::min({step, bytes.size() - done, collector.room().size()});
        std::memcpy(collector.room().data(), bytes.data() + done, size);
        collector.took(size);
        done += size;
    }
    return collector.finish();
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

TEST(Utf8CollectorTest, NoBytes_GiveTheEmptyText) {
    EXPECT_EQ(collected({}, 1), QString());
}

} // namespace
} // namespace kelvo
