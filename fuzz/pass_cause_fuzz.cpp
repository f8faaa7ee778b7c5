// What a host and its rsync say, through the host check's verdict and the naming of causes. The
// input reads like the files in tests/texts: "role: check" or "role: pull", "status: N", a blank
// line, the text.
#include "fuzz_input.h"
#include "passes/captured_text.h"
#include "passes/pass_cause.h"
#include "remote/remote_host_validation.h"

#include <charconv>

namespace {

using namespace kelvo;

constexpr qsizetype cLongestLastLine = 300;

std::optional<int> statusIn(std::string_view line) {
    constexpr std::string_view label = "status: ";
    int status = 0;
    if (line.starts_with(label))
        line.remove_prefix(label.size());
    const auto [end, fault] = std::from_chars(line.data(), line.data() + line.size(), status);
    return fault == std::errc() && end != line.data() ? std::optional(status) : std::nullopt;
}

void checkVerdict(const QString& answer, const QString& user, bool keyThere) {
    const HostVerdict told = judgedAnswer(answer, user, keyThere).verdict;
    // The one door to a pull: the answer is the user's name and nothing else.
    require((told == HostVerdict::Valid) ==
            (answer.toLower() == user.toLower() || (!keyThere && answer == u"valid")));
    require(HostVerdict::fromText(told.text()) == told);
    require(!keyThere || (told != HostVerdict::OwnWords && told != HostVerdict::NotAsked));
}

void checkNamed(const NamedCause& named, const CommandRecord& command) {
    require(named.cause >= PassCause::Well && named.cause <= PassCause::Unknown);
    require(named.lastLine.size() <= cLongestLastLine && !named.lastLine.contains(u'\n'));
    require(named.lastLine.isValidUtf16());
    require(command.text.head.contains(named.lastLine) ||
            command.text.tail.contains(named.lastLine));
    if (!command.exitStatus)
        require(named.cause == PassCause::Interrupted);
    else if (command.role == CommandRole::HostCheck)
        require(named.cause != PassCause::Well);
    else
        require((named.cause == PassCause::Well) == (*command.exitStatus == 0));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = inputText(data, size);
    CommandRecord command;
    command.role =
        nextText(rest, '\n') == "role: check" ? CommandRole::HostCheck : CommandRole::Pull;
    command.exitStatus = statusIn(nextText(rest, '\n'));
    const QString text = asText(rest);
    command.text = capturedText(text);
    if (command.text.leftOut == 0)
        require(QString(command.text.head + command.text.tail) == text);
    require(command.text.head.toUtf8().size() + command.text.tail.toUtf8().size() +
                command.text.leftOut ==
            text.toUtf8().size());

    const QString answer = text.trimmed();
    for (const bool keyThere : {false, true}) {
        checkVerdict(answer, QStringLiteral("mediauser"), keyThere);
        checkVerdict(answer, answer.section(u'\n', 0, 0), keyThere);
    }

    const NamedCause named = causeOf(command);
    checkNamed(named, command);
    PassRecord pass;
    require(causeOf(pass).cause == PassCause::SettingsMissing);
    pass.commands = {command};
    if (command.role == CommandRole::Pull) {
        require(causeOf(pass).cause == named.cause);
        // A check that went well says nothing about the pulls behind it.
        pass.kind = PassKind::Remote;
        pass.verdict = HostVerdict::Valid;
        CommandRecord check;
        check.role = CommandRole::HostCheck;
        pass.commands.insert(pass.commands.begin(), check);
        require(causeOf(pass).cause == named.cause);
    } else {
        pass.kind = PassKind::Remote;
        pass.verdict = HostVerdict::UnknownError;
        require(causeOf(pass).cause == named.cause);
    }
    return 0;
}
