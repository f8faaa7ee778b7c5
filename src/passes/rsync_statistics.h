// What an rsync command brought, read from what it printed.
#pragma once

#include "support/pass_record.h"

#include <QStringView>

namespace kelvo {

/// `output` is all that `command` printed. rsync's own statistics go first ("--stats"); without
/// them a command that the other side's protocol refused has brought nothing; else the names it
/// printed are counted, when the command asked for names; else it is unknown.
Transfer transferOf(QStringView command, QStringView output);

/// What two commands brought together. What one of them does not say is not known of the sum
/// either, unless that one is Unknown altogether: then the other's figures stand.
Transfer sumOf(const Transfer& left, const Transfer& right);

} // namespace kelvo
