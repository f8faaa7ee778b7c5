#include "ui/movie_kinds.h"

#include "settings/preferences.h"
#include "support/partial_option.h"

namespace kelvo {
namespace {

/// With the blank that parts it from what stands before.
constexpr QStringView cFilterBegin = u" -f '+ *.";
constexpr QStringView cFiltersEnd = u" -f '- *'";

/// As in " -f '+ *.[mM]4[vV]'".
QString filterOf(QStringView suffix) {
    QString filter = cFilterBegin.toString();
    for (const QChar sign : suffix) {
        if (sign.isLetter())
            filter += QString(u'[' + QString(sign) + sign.toUpper() + u']');
        else
            filter += sign;
    }
    return filter + u'\'';
}

} // namespace

QString factoryTemplate() {
    return factoryValue(*preference(prefRsyncCommandString1)).toString();
}

QString templateWithKinds(MovieKinds kinds) {
    const QString factory = factoryTemplate();
    QString command = factory.first(factory.indexOf(cFilterBegin));
    for (std::size_t i = 0; i < cMovieKinds.size(); ++i) {
        if (kinds[i])
            command += filterOf(cMovieKinds[i].suffix);
    }
    return command + QStringView(factory).sliced(factory.indexOf(cFiltersEnd));
}

std::optional<MovieKinds> kindsOfTemplate(const QString& command) {
    MovieKinds kinds;
    for (std::size_t i = 0; i < cMovieKinds.size(); ++i)
        kinds[i] = command.contains(filterOf(cMovieKinds[i].suffix));
    if (templateWithKinds(kinds) != command)
        return std::nullopt;
    return kinds;
}

std::optional<QString> successorOf(const QString& command) {
    // The option itself once stood there.
    QString today = command;
    today.replace(u' ' + cPartialWord.toString() + u' ', u' ' + cPartialOption.toString() + u' ');
    if (today == command || !kindsOfTemplate(today))
        return std::nullopt;
    return today;
}

} // namespace kelvo
