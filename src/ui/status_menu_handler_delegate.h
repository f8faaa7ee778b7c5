// KelvoStatusMenuHandlerDelegate: what a status-menu handler can tell its delegate.
#pragma once

namespace kelvo {

/// Main thread only.
class KelvoStatusMenuHandlerDelegate {
public:
    virtual ~KelvoStatusMenuHandlerDelegate() = default;
    virtual void delegatefunction1() = 0;
    virtual void delegatefunction2() = 0;
};

} // namespace kelvo
