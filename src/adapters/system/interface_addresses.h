// InterfaceAddresses: the addresses of this machine's network interfaces, as they are now.
#pragma once

#include <ifaddrs.h>

#include <memory>

namespace kelvo {

/// Asks the system once, when it is made.
class InterfaceAddresses {
public:
    InterfaceAddresses() {
        ifaddrs* list = nullptr; // and stays so when the system does not answer
        (void)::getifaddrs(&list);
        fList.reset(list);
    }

    /// The first of the list; null when there are none. Owned by this object.
    [[nodiscard]] const ifaddrs* first() const { return fList.get(); }

private:
    struct Deleter {
        void operator()(ifaddrs* list) const { ::freeifaddrs(list); }
    };
    std::unique_ptr<ifaddrs, Deleter> fList;
};

} // namespace kelvo
