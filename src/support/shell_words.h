// Words of shell commands: puts any text into a command so that it stays a part of one word.
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace kelvo {

/// What keeps `value` from being a word of a command, as in `holds a line break`; empty when
/// nothing does.
QString wordFault(QStringView value);

/// `text` as it stands between double quotes in a shell command: what the shell would read as its
/// own there gets a backslash.
QString insideDoubleQuotes(QStringView text);

/// `text` as it stands between single quotes.
QString insideSingleQuotes(QStringView text);

/// `text` as it stands in a shell command without quotes.
QString withoutQuotes(QStringView text);

/// `command` with `value` in place of each `placeholder`, escaped for the quotes around it; nothing
/// of `command` itself is changed, and an ordinary value neither. After `ssh … ` in quotes it is
/// quoted once more, in the way in which rsync reads the command of its option -e.
///
/// Nothing when a value that is not ordinary would come where its escaping is not known: into
/// another text in quotes, between backticks, in arithmetic, a here-document or the like, right
/// after a backslash or a dollar.
std::optional<QString> withWord(const QString& command, QStringView placeholder,
                                const QString& value);

/// What comes into a command in place of a placeholder.
struct Filling {
    QString placeholder;
    QString text;
    /// Of a `text` that is a piece of a command: the value that it holds. Such a text stays as it
    /// is where the shell reads a command, and is escaped between quotes. Without it `text` is a
    /// word.
    std::optional<QString> valueOfPiece = {};
};

/// `command` with all of `fillings`, in one walk: a placeholder that stands in a text filled in
/// stays there. No placeholder begins another one. Nothing in the same places.
std::optional<QString> withFillings(const QString& command, const std::vector<Filling>& fillings);

} // namespace kelvo
