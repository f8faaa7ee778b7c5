// The options of a set-up from a terminal.
#pragma once

#include "app/commands/setup_request.h"

#include <variant>

class QCommandLineParser;

namespace kelvo {

/// What a parsed command line asks for; a text when its options do not go together, nothing when
/// none of them is there.
std::variant<std::monostate, SetupRequest, QString> setupRequest(const QCommandLineParser& parser);

} // namespace kelvo
