// Profiles as files: written for another machine, and taken over from one that may be hostile.
#pragma once

#include "app/commands/settings_commands.h"
#include "support/profile.h"

#include <QByteArray>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <optional>
#include <variant>

namespace kelvo {

class UserDefaults;

inline constexpr qsizetype cLargestExport = qsizetype{64} * 1024; ///< in bytes
inline constexpr int cExitNotAccepted = 1;
inline constexpr int cExitBadProfile = 2;

/// Whether a setting goes into an exported profile. Folders and the command after arrivals belong
/// to this machine, how the window behaves to the person at it.
bool isExported(QStringView key);

/// What is set of the exported settings in `defaults`, under which none are registered, as JSON.
QByteArray exportedProfile(const UserDefaults& defaults);

/// The settings in `bytes`, or why they are refused, as in "it holds prefPath2, which no exported
/// profile holds". Every value is of its key's type and can stand in a command.
std::variant<QVariantMap, QString> importedProfile(const QByteArray& bytes);

/// `command` taken apart at the blanks between which the shell reads one word, each as it stands.
/// Where that is not sure the rest is one piece.
QStringList shellPieces(const QString& command);

/// What the import of `settings` changes, and the whole command that passes will run then, for a
/// terminal. Control characters are spelled out.
QString importPreview(const QVariantMap& settings, const Profile& profile, bool isThere);

struct TransferRequest {
    QString file = {};
    bool accept = false; ///< without a question
};

/// What an import asks of its surroundings.
struct ImportParts {
    bool isThere = false; ///< the profile that is imported into
    /// Shows the preview and asks for a yes; nothing where nobody can be asked.
    std::function<std::optional<bool>(const QString& preview)> ask;
    /// Gives the exported settings these values, and those that are missing in it none; why that
    /// failed, empty when it did not.
    std::function<QString(const QVariantMap& settings)> store;
};

/// Imports `bytes` into `profile`.
CommandAnswer answerImport(const TransferRequest& request, const QByteArray& bytes,
                           const Profile& profile, const ImportParts& parts);

/// The same with this user's files; a file "-" is standard output. A file that is there already is
/// not written over. Need an application object.
CommandAnswer runExportCommand(const Profile& profile, const QString& file);
CommandAnswer runImportCommand(const Profile& profile, const TransferRequest& request);

} // namespace kelvo
