// UserSshConfiguration: ~/.ssh/config and the line in it that tells ssh of the shared connection.
#pragma once

#include "ports/ssh_configuration.h"

namespace kelvo {

class UserSshConfiguration final : public SshConfiguration {
public:
    /// `fragment` is what the line includes, `machines` the same in the machine's own
    /// configuration, `home` where ssh looks for the user's files: without it the home of the
    /// account, whatever $HOME says, as ssh does.
    UserSshConfiguration(const QString& fragment, QString machines, QString home = {});

    Knows knows() const override;
    QString file() const override;
    QString line() const override { return fLine; }
    QString setLine(bool there) override;

private:
    const QString fLine;
    const QString fMachines;
    const QString fHome;
};

} // namespace kelvo
