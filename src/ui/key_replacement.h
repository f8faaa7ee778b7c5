// KeyReplacement: asks a person before the program's key is replaced, and keeps the old one.
#pragma once

#include "remote/ssh_key_provisioning.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <utility>

namespace kelvo {

class AlertPresenter;
class KeptPair;

/// Main thread only. The main queue must have ended before this is destroyed.
class KeyReplacement {
public:
    struct Parts {
        FileManager& files;
        DispatchQueue& mainQueue;
        AlertPresenter& alerts;
        std::function<QDateTime()> now; ///< any thread
    };
    /// What replaces the pair, with the guard that goes around it.
    using Replace = std::function<void(const PairGuard&)>;

    /// All of it outlives this.
    explicit KeyReplacement(Parts parts) : fParts(std::move(parts)) {}

    /// Runs `replace` once a person has agreed; at once where there is nothing to lose. The answer
    /// that the keyboard gives changes nothing. While the question stands it is not asked again.
    void askAndReplace(Replace replace);

    /// The same for what replaces only a pair that is not complete: asks when it is the private
    /// half that is left.
    void askAndComplete(Replace replace);

private:
    QString keyPath() const;
    void ask(Replace replace);
    PairGuard guard() const;
    void tell(const QString& title, const QString& text) const;
    void tellOfReturn(KeptPair& kept) const;

    const Parts fParts;
    bool fAsking = false;
};

} // namespace kelvo
