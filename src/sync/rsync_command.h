// RsyncCommand: turns a command template and the settings into one rsync command line.
#pragma once

#include <QString>

#include <array>
#include <mutex>
#include <optional>

namespace kelvo {

class Console;
class UserDefaults;

/// The template of the second command of a remote pass: pulls movie files by their name alone.
inline constexpr QStringView cMovieCommandTemplate =
    uR"(/usr/bin/rsync %@98  -f '+ */' -f '+ *.[mM][oOpP][vV4]*' -f '- *' -r  --times  --prune-empty-dirs "%@1" "%@2" )";

/// The rsync option that a stored prefRsyncCommandOptionTag stands for; nothing for a tag that
/// does not exist.
std::optional<QStringView> optionStringForTag(qint64 tag);

/// What goes into a template. A missing source or destination leaves its placeholder standing.
struct RsyncParams {
    std::optional<QString> srcpath;
    std::optional<QString> dstpath;
    std::optional<QString> sshfilepath; ///< private key; given only for passes over ssh

    bool operator==(const RsyncParams&) const = default;
};

/// `command` with its placeholders replaced: the source first, then in one walk destination, key
/// file, ssh part and option. So a placeholder inside a source is filled, and one inside any other
/// text stays. What is filled in stays in its word: it is escaped for the shell and, the path on
/// another host, for the shell there. Nothing when `command` puts a text where that cannot be done.
std::optional<QString> filledCommand(const QString& command, const RsyncParams& params,
                                     QStringView optionString);

/// What keeps `command` from being filled with `params` and run, as in `the destination begins with
/// "-"`; empty when nothing does. The folders meant, and no others, are then read and filled,
/// unless the source holds a placeholder.
QString commandFault(const QString& command, const RsyncParams& params);

/// Any thread. An endless pass asks for the same commands again: those filled last are kept.
class RsyncCommand {
public:
    RsyncCommand(UserDefaults& defaults, Console& console)
        : fDefaults(defaults), fConsole(console) {}

    /// The option of the stored tag. A tag that does not exist stops the program, once the log says
    /// what is stored and how to mend it.
    QString getRsyncCommandOptionString() const;

    /// As the function of that name.
    QString commandFault(const QString& command, const RsyncParams& params) const;

    /// `filledCommand` with the stored option, traced on the console step by step.
    std::optional<QString> fillInParams(const QString& command, const RsyncParams& params) const;

private:
    struct Filled {
        QString command;
        RsyncParams params;
        QString option;
        std::optional<QString> text;
    };

    std::optional<QString> filled(const QString& command, const RsyncParams& params,
                                  const QString& option) const;
    [[noreturn]] void stopForTag() const;
    void tracePathStep(const std::optional<QString>& path) const;

    UserDefaults& fDefaults;
    Console& fConsole;
    mutable std::mutex fMutex;
    /// Of a remote pass: its first command without the option and with it, and its second.
    mutable std::array<Filled, 3> fFilled;
    mutable std::size_t fNext = 0; ///< where the next one goes
};

} // namespace kelvo
