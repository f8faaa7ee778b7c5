#include "adapters/console/terminal_dialogue.h"

#include "support/plain_line.h"

#include <QByteArray>
#include <QSocketNotifier>

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace kelvo {
namespace {

/// A terminal gives out no longer lines.
constexpr qsizetype cLongestLine = 4096;

} // namespace

TerminalDialogue::TerminalDialogue(int input, int output)
    : fInput(input), fOutput(output), fCanAnswer(::isatty(input) == 1 && ::isatty(output) == 1) {
    if (!fCanAnswer)
        return;
    fNotifier = std::make_unique<QSocketNotifier>(input, QSocketNotifier::Read);
    fNotifier->setEnabled(false);
    QObject::connect(fNotifier.get(), &QSocketNotifier::activated, [this] { readLine(); });
}

TerminalDialogue::~TerminalDialogue() = default;

void TerminalDialogue::say(const QString& text) {
    write(withVisibleControls(text) + u'\n');
}

void TerminalDialogue::ask(const QString& question, Answered answered) {
    write(withVisibleControls(question));
    fAnswered = std::move(answered);
    if (fNotifier)
        fNotifier->setEnabled(true);
}

void TerminalDialogue::takeBack() {
    if (!fAnswered)
        return;
    fAnswered = nullptr;
    fNotifier->setEnabled(false);
    write(QStringLiteral("\n"));
}

void TerminalDialogue::readLine() {
    QByteArray line(cLongestLine, '\0');
    const ssize_t size = ::read(fInput, line.data(), static_cast<std::size_t>(line.size()));
    if (size < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    fNotifier->setEnabled(false);
    const Answered answered = std::exchange(fAnswered, nullptr);
    if (!answered)
        return;
    if (size <= 0) {
        write(QStringLiteral("\n"));
        answered(std::nullopt);
        return;
    }
    line.truncate(size);
    if (line.endsWith('\n'))
        line.chop(1);
    answered(QString::fromUtf8(line));
}

void TerminalDialogue::write(const QString& text) const {
    QByteArray bytes = text.toUtf8();
    while (!bytes.isEmpty()) {
        const ssize_t size =
            ::write(fOutput, bytes.constData(), static_cast<std::size_t>(bytes.size()));
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0)
            return;
        bytes.remove(0, size);
    }
}

} // namespace kelvo
