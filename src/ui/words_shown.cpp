// The texts that the program's lower parts say in English, for the catalogues; how they are found.
#include "ui/words.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kelvo {
namespace {

constexpr const char* cContext = "FixedWords";

/// Texts without a value are found as they stand; they are named here for the catalogues alone.
[[maybe_unused]] constexpr auto cTexts = std::to_array<const char*>({
    // the start button
    QT_TRANSLATE_NOOP("FixedWords", "Start rsync with bonjour"),
    QT_TRANSLATE_NOOP("FixedWords", "Start rsync with afp path"),
    QT_TRANSLATE_NOOP("FixedWords", "click to stop bonjour rsync"),
    QT_TRANSLATE_NOOP("FixedWords", "click to stop rsync"),
    QT_TRANSLATE_NOOP("FixedWords", "click to start rsync using bonjour"),
    QT_TRANSLATE_NOOP("FixedWords", "click to start rsync"),
    QT_TRANSLATE_NOOP("FixedWords", "click to restart rsync using bonjour"),
    QT_TRANSLATE_NOOP("FixedWords", "click to restart rsync"),
    // the status line
    QT_TRANSLATE_NOOP("FixedWords", "Trying to rsync From Destination to Source..."),
    QT_TRANSLATE_NOOP("FixedWords", "Resting a bit ..."),
    QT_TRANSLATE_NOOP("FixedWords", "The settings file cannot be read - waiting..."),
    QT_TRANSLATE_NOOP("FixedWords", "oops - something went wrong - check settings and hardware "
                                    "connections - then try again..."),
    // the alert after ten failures
    QT_TRANSLATE_NOOP("FixedWords", "Unable to Reach Remote Host"),
    QT_TRANSLATE_NOOP("FixedWords",
                      "Missing ssh keys -\nPlease generate ssh keys\n and \n try again...\n"),
    // the connection test
    QT_TRANSLATE_NOOP("FixedWords", "SUCCESS..."),
    QT_TRANSLATE_NOOP("FixedWords", "remote seem to be alive?..."),
    QT_TRANSLATE_NOOP("FixedWords", "Oh OH..."),
    QT_TRANSLATE_NOOP("FixedWords", "ssh identity file is invalid or missing ???..."),
    QT_TRANSLATE_NOOP("FixedWords", "ssh remote has issues - please check network connection or "
                                    "remote username@domain parameters..."),
    // the list of Macs
    QT_TRANSLATE_NOOP("FixedWords", "Please Wait - Scanning for smb machines on network..."),
    QT_TRANSLATE_NOOP("FixedWords", "Bonjour List..."),
    // the network line
    QT_TRANSLATE_NOOP("FixedWords", "No network connection"),
    QT_TRANSLATE_NOOP("FixedWords", "Connected to the local network only"),
    QT_TRANSLATE_NOOP("FixedWords", "Connected to the network"),
    // why a pass was refused
    QT_TRANSLATE_NOOP("FixedWords", "the user name holds a zero"),
    QT_TRANSLATE_NOOP("FixedWords", "the user name holds a line break"),
    QT_TRANSLATE_NOOP("FixedWords", "the user name holds signs that are no text"),
    QT_TRANSLATE_NOOP("FixedWords", "the user name begins with \"-\""),
    QT_TRANSLATE_NOOP("FixedWords", "the user name holds \":\" or \"/\""),
    QT_TRANSLATE_NOOP("FixedWords", "the host name holds a zero"),
    QT_TRANSLATE_NOOP("FixedWords", "the host name holds a line break"),
    QT_TRANSLATE_NOOP("FixedWords", "the host name holds signs that are no text"),
    QT_TRANSLATE_NOOP("FixedWords", "the host name begins with \"-\""),
    QT_TRANSLATE_NOOP("FixedWords", "the host name holds \"/\""),
    QT_TRANSLATE_NOOP("FixedWords", "the path of the key file holds a line break"),
    QT_TRANSLATE_NOOP("FixedWords", "the path of the key file holds signs that are no text"),
    QT_TRANSLATE_NOOP("FixedWords", "the source holds a zero"),
    QT_TRANSLATE_NOOP("FixedWords", "the source holds a line break"),
    QT_TRANSLATE_NOOP("FixedWords", "the source holds signs that are no text"),
    QT_TRANSLATE_NOOP("FixedWords", "the source begins with \"-\""),
    QT_TRANSLATE_NOOP("FixedWords", "the host of the source begins with \"-\""),
    QT_TRANSLATE_NOOP("FixedWords", "the source would be read as a module of an rsync daemon"),
    QT_TRANSLATE_NOOP("FixedWords", "the destination holds a zero"),
    QT_TRANSLATE_NOOP("FixedWords", "the destination holds a line break"),
    QT_TRANSLATE_NOOP("FixedWords", "the destination holds signs that are no text"),
    QT_TRANSLATE_NOOP("FixedWords", "the destination begins with \"-\""),
    QT_TRANSLATE_NOOP("FixedWords", "the destination would be read as the name of a host"),
    QT_TRANSLATE_NOOP("FixedWords", "the command puts a text where it cannot be kept in one word"),
    // what the system says of a file
    QT_TRANSLATE_NOOP("FixedWords", "Disk quota exceeded"),
    QT_TRANSLATE_NOOP("FixedWords", "Input/output error"),
    QT_TRANSLATE_NOOP("FixedWords", "Is a directory"),
    QT_TRANSLATE_NOOP("FixedWords", "No space left on device"),
    QT_TRANSLATE_NOOP("FixedWords", "No such file or directory"),
    QT_TRANSLATE_NOOP("FixedWords", "Not a directory"),
    QT_TRANSLATE_NOOP("FixedWords", "Permission denied"),
    QT_TRANSLATE_NOOP("FixedWords", "Read-only file system"),
    QT_TRANSLATE_NOOP("FixedWords", "Too many open files"),
});

/// Texts that carry values. One that another would match too stands before it.
constexpr auto cPatterns = std::to_array<const char*>({
    QT_TRANSLATE_NOOP("FixedWords", "Trying to rsync with option = %1..."),
    QT_TRANSLATE_NOOP("FixedWords", "something went wrong - waiting to retry again... [%1]"),
    QT_TRANSLATE_NOOP("FixedWords", "Please make sure remote host is on this network\nor\nPlease "
                                    "check username...\n\n%1\n"),
    QT_TRANSLATE_NOOP("FixedWords", "Settings cannot be saved to %1: %2"),
    QT_TRANSLATE_NOOP("FixedWords", "The settings in %1 are not known: %2"),
});

/// What stands in `text` where `pattern` has "%1" and "%2", in this order; nothing when the rest
/// differs.
std::optional<QStringList> valuesIn(const QString& text, const QString& pattern) {
    QStringList pieces;
    qsizetype from = 0;
    for (const QStringView place : {u"%1", u"%2"}) {
        if (const qsizetype at = pattern.indexOf(place, from); at >= 0) {
            pieces.append(pattern.sliced(from, at - from));
            from = at + place.size();
        }
    }
    const QString end = pattern.sliced(from);
    if (!text.startsWith(pieces.constFirst()) || !text.endsWith(end))
        return {};
    QStringList values;
    from = pieces.constFirst().size();
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        const qsizetype at = text.indexOf(pieces[i], from);
        if (at < 0)
            return {};
        values.append(text.sliced(from, at - from));
        from = at + pieces[i].size();
    }
    if (text.size() - end.size() < from)
        return {};
    values.append(text.sliced(from, text.size() - end.size() - from));
    return values;
}

} // namespace

QString Words::shown(const QString& english) {
    const auto found = [](const QString& text) {
        return QCoreApplication::translate(cContext, text.toUtf8().constData());
    };
    if (QString text = found(english); text != english)
        return text;
    for (const char* pattern : cPatterns) {
        const auto values = valuesIn(english, QString::fromUtf8(pattern));
        if (!values)
            continue;
        const QString text = QCoreApplication::translate(cContext, pattern);
        const QString first = shown(values->constFirst());
        return values->size() == 1 ? text.arg(first) : text.arg(first, shown(values->at(1)));
    }
    return english;
}

} // namespace kelvo
