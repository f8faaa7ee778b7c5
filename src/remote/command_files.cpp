#include "remote/command_files.h"

#include "ports/console.h"
#include "ports/file_manager.h"
#include "support/shell_words.h"
#include "support/text.h"

#include <utility>

namespace kelvo {
namespace {

constexpr unsigned cExecutable = 0755;
constexpr QStringView cScriptName = u"tempshell.command";

} // namespace

bool CommandFiles::removeItemIfExists(const QString& path) {
    fParts.console.print(insideLine(u"String", u"removeItemIfExists()"));
    return removeIfThere(path);
}

bool CommandFiles::removeIfThere(const QString& path) {
    constexpr QStringView operation = u"removeItemIfExists()";
    fParts.console.print(insideLine(u"URL", operation));
    if (!fParts.files.fileExistsAtPath(path))
        return true;
    const FileFault fault = fParts.files.removeItem(path);
    if (fault)
        fParts.console.print(
            insideLine(u"URL", operation, QString(u".......removeItem ERROR = " + *fault)));
    return !fault;
}

QString CommandFiles::chmodAsExecutable(const QString& path, const RunCommand& run) {
    const QString command = u"/bin/chmod 0755 2>&1 \"" + insideDoubleQuotes(path) + u'"';
    fParts.console.print(u"trying command = [" + command + u']');
    QString output =
        run({.text = command, .seconds = cCommandGrace, .bounds = cShortAnswer}).output;
    fParts.console.print(u"terminal chmod result = [" + output + u']');
    return output;
}

QString CommandFiles::chmodAsExecutableBySystemCall(const QString& path) {
    const QString result = QString::number(fParts.files.changeMode(path, cExecutable));
    fParts.console.print(u"chmod result = [" + result + u']');
    return result == u"0" ? QString() : result;
}

QString CommandFiles::writeCommandFile(const QString& command, const RunCommand& run) {
    QString path = scriptPath();
    if (path.isEmpty() || !writeScript(path, command))
        return {};
    (void)chmodAsExecutable(path, run);
    return path;
}

void CommandFiles::openScript(const QString& path, const QString& command,
                              std::function<void(TerminalOutcome)> ended, const QString& title) {
    fParts.terminal.openCommandFile(path, command, title, std::move(ended));
}

QString CommandFiles::scriptPath() {
    const FolderOrFault folder = fParts.files.temporaryFolder();
    if (!folder.path.isEmpty())
        return appendingPathComponent(folder.path, cScriptName);
    fParts.console.print(u"ooops bad..." + folder.fault);
    return {};
}

bool CommandFiles::writeScript(const QString& path, const QString& command) {
    const FileFault fault = fParts.files.writeAtomically(path, QString(command + u'\n').toUtf8());
    if (fault)
        fParts.console.print(u"ooops bad..." + *fault);
    return !fault;
}

bool CommandFiles::removeOldScript(const QString& path) {
    if (!fParts.files.fileExistsAtPath(path) || !fParts.files.removeItem(path))
        return true;
    fParts.console.print(QStringLiteral("ooops -did not delete that file"));
    fParts.console.print(
        QStringLiteral("hmm... what to do?>>> cant get rid of old file first......"));
    return false;
}

} // namespace kelvo
