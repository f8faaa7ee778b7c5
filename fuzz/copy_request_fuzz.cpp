// Any bytes as the line of a guest, and as what a running copy answers: each is understood or
// refused in words that fit a terminal, and no line gets longer than lines may be.
#include "app/commands/ask.h"
#include "fuzz_input.h"

namespace {

using namespace kelvo;

/// Nothing in `text` moves a terminal's cursor.
bool isPlain(const QString& text) {
    for (const QChar each : text) {
        const char16_t unit = each.unicode();
        if ((unit < 0x20 && unit != u'\n') || (unit >= 0x7f && unit < 0xa0))
            return false;
    }
    return true;
}

void checkRequest(const QByteArray& line) {
    const auto request = requestFrom(line);
    if (const auto* fault = std::get_if<QString>(&request)) {
        require(!fault->isEmpty() && isPlain(*fault) && !fault->contains(u'\n'));
        QJsonObject answer = answerOf(u"refused");
        answer.insert(QStringLiteral("text"), asText(std::string_view(line.data(), line.size())));
        const QByteArray said = answerLine(answer);
        require(said.size() <= 64 * 1024 && said.endsWith('\n') && said.count('\n') == 1);
        return;
    }
    const CopyVerb verb = std::get<CopyVerb>(request);
    require(std::get<CopyVerb>(requestFrom(requestLine(verb).chopped(1))) == verb);
}

void checkAnswer(const QByteArray& line, const CopyRequest& request) {
    CopyAnswers answers(request);
    const QDateTime now(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
    for (int times = 0; times < 2; ++times) {
        const Told told = answers.heard(line, now);
        require(isPlain(told.errors));
        require(told.output.isEmpty() || told.output.endsWith(u'\n'));
        require(told.errors.isEmpty() || told.errors.startsWith(u"kelvo-mirror: "));
        require(told.exitCode == 0 || told.ends);
        if (request.json)
            require(told.output.count(u'\n') <= 1);
        else
            require(isPlain(told.output));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = inputText(data, size);
    const QByteArray line(text.data(), static_cast<qsizetype>(text.size()));
    checkRequest(line);
    checkAnswer(line, {.verb = CopyVerb::Status, .json = false, .maxAge = 60});
    checkAnswer(line, {.verb = CopyVerb::Status, .json = true});
    checkAnswer(line, {.verb = CopyVerb::Follow, .json = false});
    checkAnswer(line, {.verb = CopyVerb::Cancel, .json = false});
    return 0;
}
