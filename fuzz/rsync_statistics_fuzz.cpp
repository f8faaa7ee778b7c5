// A command line in the first line, and behind it any bytes as what rsync printed: whatever they
// are, the figures are figures.
#include "fuzz_input.h"
#include "passes/rsync_statistics.h"

namespace {

using namespace kelvo;

bool same(const Transfer& left, const Transfer& right) {
    return left.source == right.source && left.files == right.files && left.bytes == right.bytes;
}

void checkFigures(const Transfer& transfer) {
    require(!transfer.files || *transfer.files >= 0);
    require(!transfer.bytes || *transfer.bytes >= 0);
    if (transfer.source == TransferSource::Unknown)
        require(!transfer.files && !transfer.bytes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = inputText(data, size);
    const QString command = asText(nextText(rest, '\n'));
    const QString output = asText(rest);
    const Transfer transfer = transferOf(command, output);
    checkFigures(transfer);
    if (transfer.source == TransferSource::Lines)
        require(transfer.files && *transfer.files <= output.count(u'\n') + 1);

    // Line ends of a terminal change nothing, and neither does a text that is not the last word.
    if (!output.contains(u'\r')) {
        QString fromTerminal = output;
        require(same(transfer, transferOf(command, fromTerminal.replace(QStringLiteral("\n"),
                                                                        QStringLiteral("\r\n")))));
    }
    if (transfer.source == TransferSource::Statistics) {
        require(same(transfer, transferOf(QStringView(), output)));
        require(same(transfer, transferOf(command, QString(output + u'\n' + output))));
    }

    const Transfer half = transferOf(command, QStringView(output).first(output.size() / 2));
    checkFigures(half);
    const Transfer sum = sumOf(transfer, half);
    checkFigures(sum);
    require(same(sum, sumOf(half, transfer)));
    require(same(transfer, sumOf(transfer, Transfer{})) &&
            same(transfer, sumOf(Transfer{}, transfer)));
    if (sum.files && transfer.files && half.files)
        require(*sum.files >= *transfer.files && *sum.files >= *half.files);
    return 0;
}
