// SetupQuestions: asks in a terminal what the window asks for a set-up, in the window's order.
#pragma once

#include "app/commands/setup_faults.h"
#include "app/commands/setup_macs.h"
#include "app/commands/setup_request.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace kelvo {

class FileManager;
class SshConfiguration;

/// Changes nothing but `settings`. Main thread only; a folder is looked at here.
class SetupQuestions {
public:
    struct Parts {
        Dialogue& dialogue;
        UserDefaults& settings; ///< an overlay: the answers are kept there
        const FileManager& files;
        SetupMacs& macs;
        const SshConfiguration& ssh;
        ServiceFacts service;
        QString unit = QStringLiteral("kelvo-mirror"); ///< without its ".service"
    };
    /// Gets the answers, or what the command ends with instead.
    using Done = std::function<void(const std::optional<SetupAnswers>&, const CommandAnswer&)>;

    /// All of it outlives this.
    SetupQuestions(const Parts& parts, SetupRequest request);
    SetupQuestions(const SetupQuestions&) = delete;
    SetupQuestions& operator=(const SetupQuestions&) = delete;

    /// Asks what `request` leaves open. What was set before is offered, and taken where nobody can
    /// be asked; what is missing then is named, all of it. Calls `done` once.
    void begin(Done done);

private:
    using Step = void (SetupQuestions::*)();
    using Fault = std::function<QString(const QString&)>; ///< empty when there is none
    struct Field {
        QStringView key;
        QStringView option;
        QString question;
        std::optional<QString> given;
        Fault fault;
        /// Takes an answer that is another way to say it. May be empty.
        std::function<bool(const QString&)> takes = {};
    };

    void next();
    void fail(int exitCode, const QString& why);
    void endOfInput();
    void askFor(const Field& field);
    void askInTerminal(const Field& field, const std::optional<QString>& standing);
    void keep(const Field& field, const QString& value);
    void askYesOrNo(const QString& question, bool usually, std::function<void(bool)> then);

    void askForMac();
    void askForMacByName();
    void askForAccount();
    void askForFolder();
    void askForDestination();
    void askToMakeDestination();
    void askForNewKey();
    void askToShareConnection();
    void askToEnable();
    void askToLinger();

    const Parts fParts;
    const SetupFaults fFaults;
    const SetupRequest fRequest;
    Done fDone;
    std::size_t fStep = 0;
    QStringList fMissing; ///< options
    SetupAnswers fAnswers;
};

} // namespace kelvo
