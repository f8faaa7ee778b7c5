// Kinds of movies: which files the rsync template of the factory takes, read from it and put into
// it.
#pragma once

#include <QString>

#include <array>
#include <bitset>
#include <optional>

namespace kelvo {

struct MovieKind {
    QStringView suffix; ///< of a file's name, behind the full stop, in small letters
    /// The second command of a pass over ssh takes these files whatever the template says.
    bool comesAnyway = false;
};

/// In the order in which a template names them.
inline constexpr auto cMovieKinds = std::to_array<MovieKind>({
    {u"mov", true},
    {u"mp4", true},
    {u"m4v"},
    {u"mkv"},
    {u"avi"},
    {u"mpg"},
    {u"mpeg"},
    {u"webm"},
    {u"mts"},
    {u"m2ts"},
    {u"mxf"},
    {u"wmv"},
});

/// Which of cMovieKinds, by their places there.
using MovieKinds = std::bitset<cMovieKinds.size()>;

/// The factory's template with filters that take `kinds`, in capital and small letters, and no
/// other file.
QString templateWithKinds(MovieKinds kinds);

/// The kinds for which `command` is what templateWithKinds gives; nothing for every other text.
std::optional<MovieKinds> kindsOfTemplate(const QString& command);

/// The template as it is delivered.
QString factoryTemplate();

/// What templateWithKinds gives today for a `command` that it gave in an earlier version; nothing
/// for every other text.
std::optional<QString> successorOf(const QString& command);

} // namespace kelvo
