// The rule by which a list of computers is made from a list of services: one row an address.
#pragma once

#include "support/dnssd_service.h"

#include <QSet>

namespace kelvo {

enum class Admission {
    Admitted,  ///< a new address
    BadKey,    ///< no usable address yet
    Duplicate, ///< the address was admitted before
};

/// Whether `record` gets a row; an admitted record's address joins `addresses`. Constant time.
Admission admit(const DNSSD_Service& record, QSet<QString>& addresses);

} // namespace kelvo
