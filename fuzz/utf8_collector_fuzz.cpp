// How much is kept in the first byte, the size of the pieces in the second, then what a command
// prints: what is kept and what is left out add up, whatever the pieces, and the text is one.
#include "adapters/process/utf8_collector.h"
#include "fuzz_input.h"

#include <QStringDecoder>

#include <algorithm>
#include <cstring>

namespace {

using namespace kelvo;

Utf8Collector::Collected collected(std::string_view bytes, std::size_t kept, std::size_t piece) {
    Utf8Collector collector(kept);
    const auto total = static_cast<qint64>(bytes.size());
    while (!bytes.empty()) {
        const std::span<char> room = collector.room();
        require(!room.empty() && room.size() <= kept);
        const std::size_t size = std::min({room.size(), piece, bytes.size()});
        std::memcpy(room.data(), bytes.data(), size);
        collector.took(size);
        bytes.remove_prefix(size);
    }
    require(collector.total() == total);
    return collector.finish();
}

QString decoded(std::string_view bytes, bool& whole) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless |
                                                       QStringConverter::Flag::ConvertInitialBom);
    const QString text =
        decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    whole = !decoder.hasError();
    return text;
}

/// What stands in place of the bytes left out, and on either side of it what the two ends hold.
void checkEnds(const Utf8Collector::Collected& told, std::string_view bytes, std::size_t kept,
               bool whole) {
    const auto total = static_cast<qint64>(bytes.size());
    const qint64 least = total - static_cast<qint64>(kept);
    constexpr qint64 cRestOfCharacters = 6;
    require(told.leftOut >= least && told.leftOut <= least + cRestOfCharacters);
    const QString mark = u"\n… " + QString::number(told.leftOut) + u" bytes left out …\n";
    for (qsizetype at = told.text.indexOf(mark); at >= 0; at = told.text.indexOf(mark, at + 1)) {
        const QByteArray head = told.text.first(at).toUtf8();
        const QByteArray tail = told.text.sliced(at + mark.size()).toUtf8();
        if (!whole)
            return;
        // Whole characters go in, so they come out, and no byte of them is counted twice.
        if (head.size() + tail.size() + told.leftOut == total &&
            bytes.starts_with(std::string_view(head.data(), head.size())) &&
            bytes.ends_with(std::string_view(tail.data(), tail.size())))
            return;
    }
    require(false);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2)
        return 0;
    const std::size_t kept = 2 + data[0];
    const std::size_t piece = 1 + data[1];
    const std::string_view bytes = inputText(data + 2, size - 2);

    const Utf8Collector::Collected told = collected(bytes, kept, piece);
    require(told.text.isValidUtf16());
    for (const std::size_t other : {std::size_t{1}, kept}) {
        const Utf8Collector::Collected again = collected(bytes, kept, other);
        require(again.text == told.text && again.leftOut == told.leftOut);
    }

    bool whole = false;
    const QString text = decoded(bytes, whole);
    if (bytes.size() <= kept)
        require(told.leftOut == 0 && told.text == text);
    else
        checkEnds(told, bytes, kept, whole);
    return 0;
}
