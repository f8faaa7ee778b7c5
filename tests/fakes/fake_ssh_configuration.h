// FakeSshConfiguration: a configuration of ssh in memory.
#pragma once

#include "ports/ssh_configuration.h"

namespace kelvo {

class FakeSshConfiguration final : public SshConfiguration {
public:
    Knows knows() const override { return standing; }
    QString file() const override { return QStringLiteral("/home/me/.ssh/config"); }
    QString line() const override { return QStringLiteral("Include \"/opt/ssh.conf\""); }
    QString setLine(bool there) override {
        if (fault.isEmpty())
            standing = there ? Knows::ByTheLine : Knows::NotYet;
        return fault;
    }

    Knows standing = Knows::NotYet;
    QString fault; ///< what every change meets
};

} // namespace kelvo
