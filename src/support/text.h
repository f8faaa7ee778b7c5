// Text helpers that every part of the program shares.
#pragma once

#include <QString>

#include <optional>

namespace kelvo {

/// The name under which the main view controller signs its diagnostic lines.
inline constexpr QStringView cViewControllerTypeName = u"Kelvo_Mirror.ViewController";

/// The identifier of the list of services in the interface.
inline constexpr QStringView cBonjourVCstoryboardID = u"BonjourVCstoryboardID";

/// `text` without the Unicode white space and line ends around it.
QString trimmedText(QStringView text);

/// `text` trimmed, ending in exactly the "/" it had or in one added: "" becomes "/".
QString withTrailingSlash(QStringView text);

/// How many signs at the beginning of `text` are ASCII. Looks at four of them at a time.
qsizetype asciiAtStart(QStringView text);

/// A leading "~" (alone or before "/") becomes `home`; any other path passes unchanged.
QString expandingTilde(QStringView path, QStringView home);

/// `path` with `component` after it, joined by one "/": runs of "/" become one, none stands at the
/// end. An empty component adds nothing.
QString appendingPathComponent(QStringView path, QStringView component);

/// A diagnostic line: "Inside " + type + "->" + operation + detail.
QString insideLine(QStringView typeName, QStringView operation, QStringView detail = u".......");

/// `text` in double quotes, with quotes and backslashes in it escaped.
QString quotedText(QStringView text);

/// How an optional value reads in a diagnostic line: `Optional("x")` or `nil`.
QString optionalText(const std::optional<QString>& value);

} // namespace kelvo
