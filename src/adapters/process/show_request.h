// How a later copy of the program asks the running one to show itself; the same in every version.
#pragma once

#include <QByteArray>

#include <algorithm>
#include <optional>
#include <string_view>

namespace kelvo {

/// Ended by a line end; with a token there is a blank and the token before that.
inline constexpr std::string_view cShowRequest = "show";
inline constexpr std::string_view cShownAnswer = "shown\n";
inline constexpr qsizetype cLongestToken = 255;
inline constexpr auto cLongestShowRequest =
    static_cast<qsizetype>(cShowRequest.size()) + 1 + cLongestToken + 1;

inline bool isToken(QByteArrayView text) {
    return !text.isEmpty() && text.size() <= cLongestToken &&
           std::ranges::all_of(text, [](char byte) { return byte > ' ' && byte <= '~'; });
}

/// A token that is none is left out.
inline QByteArray showRequest(const QByteArray& token) {
    QByteArray request(cShowRequest.data(), cShowRequest.size());
    if (isToken(token))
        request.append(' ').append(token);
    return request.append('\n');
}

/// The token that the whole request `said` carries, empty when it has none; nothing for anything
/// else.
inline std::optional<QByteArray> tokenOfShowRequest(QByteArrayView said) {
    if (!said.startsWith(QByteArrayView(cShowRequest)) || !said.endsWith('\n'))
        return {};
    const QByteArrayView rest = said.sliced(static_cast<qsizetype>(cShowRequest.size())).chopped(1);
    if (rest.isEmpty())
        return QByteArray();
    if (rest.front() != ' ' || !isToken(rest.sliced(1)))
        return {};
    return rest.sliced(1).toByteArray();
}

} // namespace kelvo
