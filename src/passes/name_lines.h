// The lines in which rsync names what it transfers.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

#include <optional>

namespace kelvo {

/// How a command line asks rsync to name files.
enum class NameFormat {
    None,
    Bare,     ///< "%n", or what -v and --progress print
    Itemized, ///< "%i %n", or what -i prints
    Sized,    ///< "%l %n": a size before each name; no other line of rsync looks like that
    Other,    ///< there is a line for each file, but who knows what it says
};

NameFormat nameFormatOf(QStringView command);

/// Whether `line` is rsync's own talk among bare names. A file that is called so passes for talk.
bool isRemark(QStringView line);
bool isRemark(QByteArrayView line);

struct NamedFile {
    QByteArrayView name; ///< as it is printed; of a folder it ends in "/"
    std::optional<qint64> size;
};

/// What `line` names, if it names anything. Its end has been cut off.
std::optional<NamedFile> namedIn(QByteArrayView line, NameFormat format);

/// `name` with "\#ooo", rsync's writing of a byte that cannot be shown, turned back.
QByteArray unescapedName(QByteArrayView name);

} // namespace kelvo
