#include "adapters/console/terminal_line.h"

#include <QList>

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace kelvo {
namespace {

constexpr int cUsualWidth = 80;

int widthOf(int terminal) {
    winsize size{};
    return ::ioctl(terminal, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : cUsualWidth;
}

/// The beginning of `text` that surely fits: from the Korean letters on a character may take two
/// columns.
QString cutTo(const QString& text, int columns) {
    constexpr char32_t cFirstWide = 0x1100;
    QString kept;
    for (const char32_t character : text.toUcs4()) {
        columns -= character < cFirstWide ? 1 : 2;
        if (columns < 0)
            break;
        kept += QString::fromUcs4(&character, 1);
    }
    return kept;
}

} // namespace

void TerminalLine::show(const QString& text) {
    // The last column stays empty: some terminals go on to the next line behind it.
    const QString cut = cutTo(text, widthOf(fTerminal) - 1);
    pollfd ready{fTerminal, POLLOUT, 0};
    if (cut == fShown || ::poll(&ready, 1, 0) != 1)
        return;
    const QByteArray bytes = '\r' + cut.toUtf8() + "\x1b[K";
    if (::write(fTerminal, bytes.constData(), static_cast<size_t>(bytes.size())) > 0)
        fShown = cut;
}

} // namespace kelvo
