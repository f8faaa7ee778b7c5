// A command line in the first line, and behind it any bytes as what rsync printed: whatever they
// are, the figures are figures.
#include "fuzz_input.h"
#include "passes/rsync_statistics.h"

namespace {

using namespace kelvo;

bool same(const Brought& left, const Brought& right) {
    return left.source == right.source && left.files == right.files && left.bytes == right.bytes;
}

void checkFigures(const Brought& brought) {
    require(!brought.files || *brought.files >= 0);
    require(!brought.bytes || *brought.bytes >= 0);
    if (brought.source == BroughtSource::Unknown)
        require(!brought.files && !brought.bytes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = inputText(data, size);
    const QString command = asText(nextText(rest, '\n'));
    const QString output = asText(rest);
    const Brought brought = broughtBy(command, output);
    checkFigures(brought);
    if (brought.source == BroughtSource::Lines)
        require(brought.files && *brought.files <= output.count(u'\n') + 1);

    // Line ends of a terminal change nothing, and neither does a text that is not the last word.
    if (!output.contains(u'\r')) {
        QString fromTerminal = output;
        require(same(brought, broughtBy(command, fromTerminal.replace(QStringLiteral("\n"),
                                                                      QStringLiteral("\r\n")))));
    }
    if (brought.source == BroughtSource::Statistics) {
        require(same(brought, broughtBy(QStringView(), output)));
        require(same(brought, broughtBy(command, QString(output + u'\n' + output))));
    }

    const Brought half = broughtBy(command, QStringView(output).first(output.size() / 2));
    checkFigures(half);
    const Brought sum = sumOf(brought, half);
    checkFigures(sum);
    require(same(sum, sumOf(half, brought)));
    require(same(brought, sumOf(brought, Brought{})) && same(brought, sumOf(Brought{}, brought)));
    if (sum.files && brought.files && half.files)
        require(*sum.files >= *brought.files && *sum.files >= *half.files);
    return 0;
}
